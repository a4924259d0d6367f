#pragma once
#include "ports/midi_ports.h"
#include "soundfont/fluid_handle.h"
#include "synth/fluid_queue.h"
#include "synth/player.h"

#include <array>
#include <bitset>
#include <thread>

namespace synth {

/// Plays on an external port. Its thread sleeps until the next message is due.
class PortPlayer : public Player {
  public:
    /// Messages begin this many milliseconds after the start of a queue.
    static constexpr unsigned leadIn = 5;

    /// Throws soundfont::FluidError.
    PortPlayer(ports::SendBytes port, Reports reports);
    ~PortPlayer() override;

    void put(Command command) override { mailbox_.put(std::move(command)); }
    sound::SoundProblem problem() const override { return sound::SoundProblem::None; }
    bool hasVolume() const override { return false; }
    void setVolume(int, int) override {}

  private:
    using Clock = std::chrono::steady_clock;

    static void onEvent(unsigned time, fluid_event_t* event, fluid_sequencer_t* sequencer,
                        void* self);
    void run();
    void advance();
    void perform(Command& command);
    void silence(Command::Kind kind);
    void forward(fluid_event_t* event);
    void send(int status, int data1, int data2);

    ports::SendBytes port_;
    Reports reports_;
    Mailbox mailbox_;
    soundfont::FluidSequencer sequencer_;
    FluidQueue queue_;
    Clock::time_point begin_ = Clock::now();
    /// Velocity of each key that sounds, by channel; 0 for silence.
    std::array<std::array<int, 128>, 16> sounding_{};
    std::bitset<16> used_;
    std::jthread thread_;
};

}  // namespace synth
