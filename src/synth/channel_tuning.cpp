#include "synth/channel_tuning.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace synth {

namespace {

using soundfont::Instrument;

constexpr int keys = 128;
/// The synthesiser cuts every pitch to whole cents, the sum of all that bends it: with half a cent
/// more it takes the nearest.
constexpr double toTheNearest = 0.5;

bool isMeasured(int key) { return key >= soundfont::lowestKey && key <= soundfont::highestKey; }

/// A velocity that sounds so many decibels louder: the level grows with its square.
int louder(int velocity, double decibels) {
    return std::clamp(static_cast<int>(std::lround(velocity * std::pow(10, decibels / 40))), 1,
                      127);
}

/// Pitch of every key, in cents. @param instrument nullptr for one in tune.
std::array<double, keys> pitches(const Instrument* instrument) {
    std::array<double, keys> pitches{};
    for (int key = 0; key < keys; ++key) {
        const bool known = instrument && isMeasured(key);
        pitches.at(static_cast<std::size_t>(key)) =
            100.0 * key + toTheNearest + (known ? instrument->correction(key) : 0);
    }
    return pitches;
}

std::size_t channelOf(const sound::MidiEvent& event) {
    return static_cast<std::size_t>(event.status & 0x0f);
}

}  // namespace

ChannelTuning::ChannelTuning(fluid_synth_t* synth, Instruments instruments)
    : synth_(synth), instruments_(std::move(instruments)) {}

void ChannelTuning::follow(const sound::MidiEvent& event) {
    if ((event.status & 0xf0) != 0xc0) return;
    Channel& channel = channels_.at(channelOf(event));
    const int program = event.data1 & 0x7f;
    if (channel.program == program && channel.isTuned) return;
    channel = {program, false, nullptr};
    tune(channelOf(event));
}

void ChannelTuning::reset() { channels_ = {}; }

void ChannelTuning::tune() {
    for (std::size_t channel = 0; channel < channels; ++channel) tune(channel);
}

void ChannelTuning::tune(std::size_t index) {
    Channel& channel = channels_.at(index);
    if (channel.instrument) return;
    if (instruments_) channel.instrument = instruments_(channel.program);
    if (channel.isTuned && !channel.instrument) return;
    // Tunings have numbers of their own in the synthesiser: bank 0 for what is known, 1 for what
    // is not.
    const int bank = channel.instrument ? 0 : 1;
    const auto all = pitches(channel.instrument.get());
    fluid_synth_activate_key_tuning(synth_, bank, channel.program, "", all.data(), 0);
    fluid_synth_activate_tuning(synth_, static_cast<int>(index), bank, channel.program, 0);
    channel.isTuned = true;
}

void ChannelTuning::prepare(sound::MidiEvent& event, double delay) const {
    const int message = event.status & 0xf0, key = event.data1 & 0x7f;
    const auto& instrument = channels_.at(channelOf(event)).instrument;
    const bool isNote = message == 0x80 || message == 0x90;
    if (isNote && instrument && isMeasured(key)) {
        delay -= instrument->lag(key);
        if (message == 0x90 && event.data2 != 0)
            event.data2 = louder(event.data2, instrument->evenness(key));
    }
    event.time = static_cast<std::int32_t>(std::lround(event.time + delay));
}

}  // namespace synth
