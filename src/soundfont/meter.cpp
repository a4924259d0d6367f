#include "soundfont/meter.h"

#include "fontfile/font_files.h"
#include "soundfont/fluid_error.h"
#include "soundfont/fluid_settings.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>

namespace soundfont {

namespace {

constexpr int velocity = 100;
/// The synthesiser begins a note with one of its blocks, so whole ones are asked for.
constexpr int block = 64;
constexpr int framesOf(double seconds) {
    return static_cast<int>(seconds * sampleRate) / block * block;
}
/// Samples end in a loop, often of another pitch than their beginning: long notes are meant.
constexpr int usual = framesOf(1.1);
constexpr int longest = framesOf(3.3);

double frequencyOf(int key) { return 440 * std::exp2((key - 69) / 12.0); }

}  // namespace

Meter::Meter(const std::string& font)
    : settings_(makeSettings()), synth_(made(new_fluid_synth(settings_.get()), "a synthesiser")) {
    if (!fontfile::isSoundfont(font))
        throw std::runtime_error(font + ": is no soundfont, or cannot be read");
    if (fluid_synth_sfload(synth_.get(), font.c_str(), 0) == FLUID_FAILED)
        throw std::runtime_error(font + ": this soundfont is damaged");
}

bool Meter::choose(int program) {
    fluid_synth_program_change(synth_.get(), 0, program);
    fluid_preset_t* preset = fluid_synth_get_channel_preset(synth_.get(), 0);
    return preset != nullptr && fluid_preset_get_num(preset) == program;
}

Tone Meter::play(int key, int frames) {
    left_.resize(static_cast<std::size_t>(frames));
    right_.resize(static_cast<std::size_t>(frames));
    fluid_synth_all_sounds_off(synth_.get(), 0);
    fluid_synth_write_float(synth_.get(), block, left_.data(), 0, 1, right_.data(), 0, 1);
    fluid_synth_noteon(synth_.get(), 0, key, velocity);
    fluid_synth_write_float(synth_.get(), frames, left_.data(), 0, 1, right_.data(), 0, 1);
    std::ranges::transform(left_, right_, left_.begin(),
                           [](float left, float right) { return (left + right) / 2; });
    return toneOf(left_, sampleRate, frequencyOf(key));
}

std::optional<Instrument> Meter::measure(int program, const Stop& stop) {
    Instrument instrument;
    instrument.isThere = choose(program);
    for (int key = lowestKey; key <= highestKey; ++key) {
        if (stop && stop()) return {};
        instrument.at(key) = play(key, usual);
    }
    return instrument;
}

Tone Meter::playCorrected(int key, double cents) {
    std::array<double, 128> pitches{};
    for (std::size_t each = 0; each < pitches.size(); ++each)
        pitches[each] = 100 * double(each) + (int(each) == key ? cents : 0);
    fluid_synth_activate_key_tuning(synth_.get(), 0, 0, "", pitches.data(), 0);
    fluid_synth_activate_tuning(synth_.get(), 0, 0, 0, 0);
    const Tone tone = play(key, usual);
    fluid_synth_deactivate_tuning(synth_.get(), 0, 0);
    return tone;
}

std::optional<Instrument> Meter::refined(int program, const Instrument& measured,
                                         const Stop& stop) {
    constexpr double far = 20;   // cents
    constexpr double right = 3;  // cents
    Instrument instrument = measured;
    choose(program);
    for (int key = lowestKey; key <= highestKey; ++key) {
        Tone& tone = instrument.at(key);
        if (!tone.sounds()) continue;
        if (stop && stop()) return {};
        if (!tone.hasPitch()) {
            const Tone longer = play(key, longest);
            const double apart = std::abs(longer.pitch.cents - tone.pitch.cents);
            const double uncertainty = std::max(longer.pitch.uncertainty, apart / 2);
            if (uncertainty < tone.pitch.uncertainty) {
                tone.pitch = {longer.pitch.cents, uncertainty};
                tone.octave = longer.octave;
            }
        }
        const double correction = instrument.correction(key);
        if (std::abs(correction) < far) continue;
        const double left = playCorrected(key, correction).pitch.cents;
        if (std::abs(left) > right) tone.pitch.uncertainty = std::abs(left);
    }
    return instrument;
}

std::string Meter::version() { return fluid_version_str(); }

}  // namespace soundfont
