#pragma once
#include "sound/midi_output.h"
#include "soundfont/fluid_handle.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace synth {

/// A queue of timed MIDI messages on a sequencer, whose tick is one millisecond. It puts messages
/// ahead of their time and tells when the last one was played. All calls come from the thread
/// that drives the sequencer.
class FluidQueue {
  public:
    /// @param sequencer outlives the queue.
    /// @param destination client that plays the messages.
    /// @param bend what is sent to the destination for a 14-bit bend value.
    /// @param ended called on the driving thread with the number of the queue that ended.
    FluidQueue(fluid_sequencer_t* sequencer, fluid_seq_id_t destination, int (*bend)(int),
               std::function<void(std::uint32_t)> ended);
    ~FluidQueue();
    FluidQueue(const FluidQueue&) = delete;
    FluidQueue& operator=(const FluidQueue&) = delete;

    /// Plays one message at once. Messages that are no channel messages are dropped.
    void send(const sound::MidiEvent& event);
    /// Plays `events` with their time 0 `leadIn` milliseconds from now, in place of what plays.
    /// A negative time counts as 0.
    void play(std::vector<sound::MidiEvent> events, unsigned leadIn, std::uint32_t run);
    /// Forgets all messages that were not played yet; the end is not told then.
    void cancel();

    bool playing() const { return playing_; }
    /// The next tick at which something happens, after the present one.
    std::optional<unsigned> nextTick() const;

  private:
    static void onTimer(unsigned time, fluid_event_t* event, fluid_sequencer_t* sequencer,
                        void* self);
    bool translate(const sound::MidiEvent& event);
    void schedule(unsigned tick);

    fluid_sequencer_t* sequencer_;
    fluid_seq_id_t destination_;
    int (*bend_)(int);
    std::function<void(std::uint32_t)> ended_;
    soundfont::FluidEvent event_;
    fluid_seq_id_t self_;
    std::vector<unsigned> ticks_;
    std::uint32_t run_ = 0;
    bool playing_ = false;
};

}  // namespace synth
