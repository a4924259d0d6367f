#pragma once
#include "sound/midi_output.h"
#include "synth/mailbox.h"

#include <cstdint>
#include <functional>

namespace synth {

/// Plays commands on a thread of its own, which sleeps while nothing plays. Calls come from the
/// drill's thread and return at once.
class Player {
  public:
    /// What a player tells, on its own thread.
    struct Reports {
        std::function<void(std::uint32_t run)> ended;
        std::function<void()> problemChanged;
        std::function<void()> fitnessKnown = {};
    };

    virtual ~Player() = default;
    virtual void put(Command command) = 0;
    virtual sound::SoundProblem problem() const = 0;
    /// As MidiOutput::fitness.
    virtual sound::Fitness fitness(int /*program*/, int /*lowest*/, int /*highest*/) const {
        return sound::Fitness::Unknown;
    }
    /// Volumes 0..65535; a player without volume control has none to tell.
    virtual bool hasVolume() const = 0;
    virtual void setVolume(int left, int right) = 0;
};

}  // namespace synth
