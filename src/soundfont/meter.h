#pragma once
#include "soundfont/fluid_handle.h"
#include "soundfont/font_table.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace soundfont {

/// Plays a font's instruments to itself, faster than they sound, and measures them.
class Meter {
  public:
    /// Throws std::runtime_error when the synthesiser cannot be made, or the file is no soundfont.
    explicit Meter(const std::string& font);

    /// Asked before each note.
    using Stop = std::function<bool()>;

    /// About 80 ms. @return nothing when it was stopped.
    std::optional<Instrument> measure(int program, const Stop& stop);
    /// Listens longer to the notes whose pitch is not sure: a vibrato has one on average, and
    /// already in its first second. Those far
    /// off are tried as they will be corrected; some fonts have notes that go another way. At most
    /// 400 ms. @return nothing when it was stopped.
    std::optional<Instrument> refined(int program, const Instrument& measured, const Stop& stop);

    /// Both, one after the other.
    Instrument measureWhole(int program) { return *refined(program, *measure(program, {}), {}); }

    /// Of the synthesiser that measures.
    static std::string version();

  private:
    /// @return whether the font has it; else another one sounds in its place.
    bool choose(int program);
    Tone play(int key, int frames);
    Tone playCorrected(int key, double cents);

    FluidSettings settings_;
    FluidSynth synth_;
    std::vector<float> left_, right_;
};

}  // namespace soundfont
