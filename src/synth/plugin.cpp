#include "soundfont/measured_font.h"
#include "synth/synth_output.h"

// The two entries of the loadable library.
extern "C" {

/// The caller owns the output. Throws soundfont::FluidError.
__attribute__((visibility("default"))) sound::MidiOutput* melvoraMakeSynthOutput(
    const synth::Post* post) {
    return synth::makeSynthOutput(synth::SynthOptions::fromEnvironment(), *post).release();
}

/// @param table becomes the file in which the table was kept. Throws std::runtime_error.
__attribute__((visibility("default"))) void melvoraMeasureFont(
    const std::string& font, const std::string& folder, const std::function<void(int)>& progress,
    std::string& table) {
    table = soundfont::measureWhole(font, folder, progress).string();
}
}
