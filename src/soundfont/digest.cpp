#include "soundfont/digest.h"

#include <xxhash.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <memory>
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

std::string digestOfFile(const std::filesystem::path& file) {
    constexpr std::size_t part = 1 << 20;
    const std::unique_ptr<XXH3_state_t, XXH_errorcode (*)(XXH3_state_t*)> state(XXH3_createState(),
                                                                                XXH3_freeState);
    if (!state || XXH3_128bits_reset(state.get()) != XXH_OK) return {};
    std::ifstream in(file, std::ios::binary);
    std::vector<char> buffer(part);
    while (in) {
        in.read(buffer.data(), static_cast<std::streamsize>(part));
        XXH3_128bits_update(state.get(), buffer.data(), static_cast<std::size_t>(in.gcount()));
    }
    return in.eof() ? inDigits(XXH3_128bits_digest(state.get())) : std::string();
}

}  // namespace soundfont
