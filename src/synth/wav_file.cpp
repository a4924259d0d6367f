#include "synth/wav_file.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <string_view>
#include <system_error>
#include <vector>

namespace synth {

namespace {

constexpr std::uint32_t headerBytes = 44;
constexpr std::uint32_t frameBytes = 4;

void put(std::vector<char>& to, std::string_view text) {
    to.insert(to.end(), text.begin(), text.end());
}

void put(std::vector<char>& to, std::uint32_t number, int bytes) {
    for (int i = 0; i < bytes; ++i) to.push_back(static_cast<char>(number >> (8 * i)));
}

void putSample(std::vector<char>& to, float sample) {
    const long value = std::lround(std::clamp(sample, -1.0F, 1.0F) * 32767.0F);
    put(to, static_cast<std::uint32_t>(value), 2);
}

}  // namespace

WavFile::WavFile(const std::string& file, int sampleRate)
    : out_(file, std::ios::binary | std::ios::trunc),
      sampleRate_(static_cast<std::uint32_t>(sampleRate)) {
    if (!out_)
        throw std::system_error(errno, std::generic_category(), "cannot write sound to " + file);
    out_.exceptions(std::ios::badbit | std::ios::failbit);
    writeHeader();
}

void WavFile::write(const float* left, const float* right, int frames) {
    std::vector<char> samples;
    samples.reserve(static_cast<std::size_t>(frames) * frameBytes);
    for (int i = 0; i < frames; ++i) {
        putSample(samples, left[i]);
        putSample(samples, right[i]);
    }
    out_.write(samples.data(), static_cast<std::streamsize>(samples.size()));
    bytes_ += static_cast<std::uint32_t>(samples.size());
    writeHeader();
}

void WavFile::writeHeader() {
    std::vector<char> header;
    put(header, "RIFF");
    put(header, headerBytes - 8 + bytes_, 4);
    put(header, "WAVEfmt ");
    put(header, 16, 4);
    put(header, 1, 2);
    put(header, 2, 2);
    put(header, sampleRate_, 4);
    put(header, sampleRate_ * frameBytes, 4);
    put(header, frameBytes, 2);
    put(header, 16, 2);
    put(header, "data");
    put(header, bytes_, 4);
    out_.seekp(0);
    out_.write(header.data(), static_cast<std::streamsize>(header.size()));
    out_.seekp(0, std::ios::end);
    out_.flush();
}

}  // namespace synth
