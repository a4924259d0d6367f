#pragma once
#include "soundfont/fluid_settings.h"
#include "synth/channel_tuning.h"
#include "synth/fluid_queue.h"
#include "synth/level.h"
#include "synth/mailbox.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace synth {

/// The built-in synthesiser: takes commands from a mailbox and renders what they sound like. Time
/// passes for it only as it renders, so it plays the same whoever pulls it, and how fast.
class Engine {
  public:
    static constexpr int sampleRate = soundfont::sampleRate;
    /// From a queue's start to its time 0, in milliseconds: the first attack comes whole even
    /// when the audio device has just been opened and the volume is still rising.
    static constexpr unsigned leadIn = 20;

    /// @param mailbox outlives the engine.
    /// @param ended called on the pulling thread with the number of the queue that ended.
    /// @param instruments asked on that thread; nothing leaves all instruments as they are.
    /// Throws soundfont::FluidError.
    Engine(Mailbox& mailbox, std::function<void(std::uint32_t)> ended, Instruments instruments);

    /// Loads a soundfont, 10 to 50 ms for a small one. Not while render() may run.
    /// Returns false when the file is no soundfont.
    bool loadFont(const std::string& file);
    /// Not while render() may run.
    void unloadFont();
    bool hasFont() const;

    /// Renders the next `frames` frames. One thread at a time.
    void render(float* left, float* right, int frames);

    /// Volumes 0..1, from any thread.
    void setVolume(float left, float right) { level_.setVolume(left, right); }

    /// Whether a queue plays or a note sounds. From any thread, as of the last render().
    bool busy() const { return busy_; }
    /// Frames rendered so far, from any thread.
    std::uint64_t frames() const { return frames_; }

  private:
    void takeCommands();
    void perform(Command& command);
    void silence(Command::Kind kind);
    void resetChannels();
    int voices() const;

    Mailbox& mailbox_;
    soundfont::FluidSettings settings_;
    soundfont::FluidSynth synth_;
    soundfont::FluidSequencer sequencer_;
    ChannelTuning tuning_;
    FluidQueue queue_;
    Level level_;
    std::optional<Command> afterFade_;
    std::atomic<bool> busy_{false};
    std::atomic<std::uint64_t> frames_{0};
};

}  // namespace synth
