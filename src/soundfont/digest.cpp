#include "soundfont/digest.h"

#define XXH_STATIC_LINKING_ONLY  // the state as a value
#include <xxhash.h>

#include <array>
#include <cstdio>
#include <vector>

namespace soundfont {

namespace {

std::string inDigits(XXH128_hash_t hash) {
    std::array<char, 33> digits{};
    std::snprintf(digits.data(), digits.size(), "%016llx%016llx",
                  static_cast<unsigned long long>(hash.high64),
                  static_cast<unsigned long long>(hash.low64));
    return digits.data();
}

}  // namespace

std::string digestOf(std::string_view content) {
    return inDigits(XXH3_128bits(content.data(), content.size()));
}

struct FileDigest::State {
    XXH3_state_t sum;
};

FileDigest::FileDigest(const std::filesystem::path& file)
    : in_(file, std::ios::binary), state_(std::make_unique<State>()) {
    XXH3_128bits_reset(&state_->sum);
}

FileDigest::~FileDigest() = default;

bool FileDigest::readOn() {
    constexpr std::size_t part = 1 << 20;
    constexpr int parts = 8;
    std::vector<char> buffer(part);
    for (int i = 0; i < parts && in_; ++i) {
        in_.read(buffer.data(), static_cast<std::streamsize>(part));
        XXH3_128bits_update(&state_->sum, buffer.data(), static_cast<std::size_t>(in_.gcount()));
    }
    return static_cast<bool>(in_);
}

std::string FileDigest::result() const {
    return in_.eof() ? inDigits(XXH3_128bits_digest(&state_->sum)) : std::string();
}

std::string digestOfFile(const std::filesystem::path& file) {
    FileDigest digest(file);
    while (digest.readOn()) {
    }
    return digest.result();
}

}  // namespace soundfont
