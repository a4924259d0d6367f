#pragma once
#include <cstdint>
#include <fstream>
#include <string>

namespace synth {

/// A stereo WAV file of 16-bit samples that grows while it is written; it is a whole file after
/// every write.
class WavFile {
  public:
    /// Empties the file. Throws std::system_error when it cannot be written.
    WavFile(const std::string& file, int sampleRate);

    /// Appends frames of -1..1. Throws std::system_error when the disk refuses.
    void write(const float* left, const float* right, int frames);

  private:
    void writeHeader();

    std::ofstream out_;
    std::uint32_t sampleRate_;
    std::uint32_t bytes_ = 0;
};

}  // namespace synth
