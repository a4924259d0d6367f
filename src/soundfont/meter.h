#pragma once
#include "soundfont/fluid_handle.h"
#include "soundfont/font_table.h"

#include <functional>
#include <optional>
#include <string>

namespace soundfont {

/// Plays a font's instruments to itself, faster than they sound, and measures them.
class Meter {
  public:
    /// Throws std::runtime_error when the synthesiser cannot be made, or the file is no soundfont.
    explicit Meter(const std::string& font);

    /// About 80 ms. @param stop asked before each note. @return nothing when it was stopped.
    std::optional<Instrument> measure(int program, const std::function<bool()>& stop);

    /// Of the synthesiser that measures.
    static std::string version();

  private:
    FluidSettings settings_;
    FluidSynth synth_;
};

}  // namespace soundfont
