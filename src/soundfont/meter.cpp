#include "soundfont/meter.h"

#include "fontfile/font_files.h"
#include "soundfont/fluid_error.h"
#include "soundfont/fluid_settings.h"

#include <array>
#include <cmath>
#include <stdexcept>
#include <vector>

namespace soundfont {

namespace {

constexpr int velocity = 100;
/// Samples end in a loop, often of another pitch than their beginning: long notes are meant.
/// The synthesiser begins a note with one of its blocks, so whole ones are asked for.
constexpr int block = 64;
constexpr int frames = sampleRate * 11 / 10 / block * block;

double frequencyOf(int key) { return 440 * std::exp2((key - 69) / 12.0); }

}  // namespace

Meter::Meter(const std::string& font)
    : settings_(makeSettings()), synth_(made(new_fluid_synth(settings_.get()), "a synthesiser")) {
    if (!fontfile::isSoundfont(font)) throw std::runtime_error(font + ": is no soundfont, or cannot be read");
    if (fluid_synth_sfload(synth_.get(), font.c_str(), 1) == FLUID_FAILED)
        throw std::runtime_error(font + ": this soundfont is damaged");
}

std::optional<Instrument> Meter::measure(int program, const std::function<bool()>& stop) {
    Instrument instrument;
    std::vector<float> left(frames), right(frames);
    fluid_synth_program_change(synth_.get(), 0, program);
    for (int key = lowestKey; key <= highestKey; ++key) {
        if (stop && stop()) return {};
        fluid_synth_all_sounds_off(synth_.get(), 0);
        fluid_synth_write_float(synth_.get(), block, left.data(), 0, 1, right.data(), 0, 1);
        fluid_synth_noteon(synth_.get(), 0, key, velocity);
        fluid_synth_write_float(synth_.get(), frames, left.data(), 0, 1, right.data(), 0, 1);
        for (int i = 0; i < frames; ++i) left[i] = (left[i] + right[i]) / 2;
        instrument.at(key) = toneOf(left, sampleRate, frequencyOf(key));
    }
    fluid_synth_all_sounds_off(synth_.get(), 0);
    return instrument;
}

std::string Meter::version() { return fluid_version_str(); }

}  // namespace soundfont
