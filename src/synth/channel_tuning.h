#pragma once
#include "sound/midi_output.h"
#include "soundfont/fluid_handle.h"
#include "soundfont/font_table.h"

#include <array>
#include <functional>
#include <memory>

namespace synth {

/// Where the instruments are that were measured: nullptr for one that is not known (yet).
using Instruments = std::function<std::shared_ptr<const soundfont::Instrument>(int program)>;

/// Puts the instruments of a synthesiser in tune, each note by what it was measured to be off. It
/// happens inside the synthesiser: no message tells of it. All calls come from the thread that
/// drives the synthesiser.
class ChannelTuning {
  public:
    /// @param synth outlives this.
    ChannelTuning(fluid_synth_t* synth, Instruments instruments);

    /// A message is about to be played; program changes are remembered.
    void follow(const sound::MidiEvent& event);
    /// The synthesiser was reset: every channel has its first instrument.
    void reset();
    /// Tunes the channels whose instrument is known by now.
    void tune();

    /// Makes a message of a queue what must be played for it to be heard as it is meant: a note as
    /// much earlier as it is heard late, and as loud as its neighbours.
    /// @param delay milliseconds by which all messages are played later.
    void prepare(sound::MidiEvent& event, double delay) const;

  private:
    static constexpr std::size_t channels = 16;
    struct Channel {
        int program = 0;
        bool isTuned = false;
        std::shared_ptr<const soundfont::Instrument> instrument;
    };
    void tune(std::size_t index);

    fluid_synth_t* synth_;
    Instruments instruments_;
    std::array<Channel, channels> channels_;
};

}  // namespace synth
