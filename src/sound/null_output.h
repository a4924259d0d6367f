#pragma once
#include "sound/midi_output.h"

namespace sound {

/// A device that takes everything and sounds nothing; its queue never ends. For runs without time.
class NullOutput : public MidiOutput {
  public:
    int deviceCount() override { return 0; }
    MidiDevice device(int) override { return {5, "silent"}; }
    void open(int) override { open_ = true; }
    void close() override { open_ = false; }
    bool isOpen() const override { return open_; }
    void queue(const MidiEvent&) override {}
    void send(const MidiEvent&) override {}
    void start() override {}
    void stop() override {}
    int volumeLeft() const override { return 0; }
    int volumeRight() const override { return 0; }
    void setVolume(int, int) override {}
    SoundProblem problem() const override { return SoundProblem::None; }

  private:
    bool open_ = false;
};

}  // namespace sound
