#pragma once
#include "form/signal.h"

#include <cstdint>
#include <functional>
#include <string>

namespace sound {

/// One MIDI message of a queue. `time` is milliseconds from the queue's start (0 when sent at
/// once), `tag` a number carried with the event.
struct MidiEvent {
    int status = 0;
    int data1 = 0;
    int data2 = 0;
    std::int32_t time = 0;
    std::int32_t tag = 0;
};

/// What a MIDI device is: `technology` 1 a hardware or software port, 5 the built-in synthesiser.
struct MidiDevice {
    int technology = 0;
    std::string name;
};

/// Why nothing can be heard; `None` while everything is in order.
enum class SoundProblem { None, NoSoundfont, NoAudioDevice, DeviceLost, NoLibrary };

/// What an instrument is worth for a range of notes; `Unknown` while it has not been measured, and
/// on devices that cannot be.
enum class Fitness { Unknown, Fit, PartlySilent, UnclearPitch, OtherOctave, Missing };

/// Everything the drill needs of a MIDI output. It exists so that the drill can play to a
/// synthesiser, to an external port, to a recorder or to nothing. Calls come from one thread.
class MidiOutput {
  public:
    /// The built-in synthesiser, always there.
    static constexpr int mapper = -1;
    static constexpr int maxVolume = 65535;

    virtual ~MidiOutput() = default;

    /// Number of external ports; devices are numbered from `mapper` to `deviceCount() - 1`.
    virtual int deviceCount() = 0;
    virtual MidiDevice device(int id) = 0;

    /// Opens a device. An unknown number opens `mapper`. Never throws: what is wrong is told by
    /// `problem()`, and playing goes on in silence, with the queue's end event in its time.
    virtual void open(int id) = 0;
    virtual void close() = 0;
    virtual bool isOpen() const = 0;

    /// Puts an event into the queue. Events may come in any order of time.
    virtual void queue(const MidiEvent& event) = 0;
    /// Sends an event at once; `event.time` is not looked at.
    virtual void send(const MidiEvent& event) = 0;
    /// Plays the queue from time 0.
    virtual void start() = 0;
    /// Ends playing, empties the queue, silences all notes and centres all bends.
    virtual void stop() = 0;

    /// Device volume 0..65535; a device without volume control reads 0 and ignores what is set.
    virtual int volumeLeft() const = 0;
    virtual int volumeRight() const = 0;
    virtual void setVolume(int left, int right) = 0;

    virtual SoundProblem problem() const = 0;
    /// Of a General MIDI program, from a lowest to a highest MIDI note.
    virtual Fitness fitness(int /*program*/, int /*lowest*/, int /*highest*/) const {
        return Fitness::Unknown;
    }

    /// Raised once, on the drill's thread, after the last event of a started queue was played.
    std::function<void()> queueEmpty;
    /// Raised, on the drill's thread, when `problem()` has changed.
    form::Signal<> problemChanged;
    /// Raised, on the drill's thread, when `fitness()` has become known of some instruments.
    form::Signal<> fitnessKnown;
};

}  // namespace sound
