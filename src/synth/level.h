#pragma once
#include <array>
#include <atomic>

namespace synth {

/// The last step before the sound leaves: volume left and right without steps, a fade to nothing
/// when the notes are cut, and a bound that keeps the sum of many loud notes from clipping.
class Level {
  public:
    explicit Level(double sampleRate);

    /// Volumes 0..1. May be called from any thread; the sound follows within a few milliseconds.
    void setVolume(float left, float right);

    /// Begins fading to nothing; closed() once it is reached, open() ends it at once.
    void fadeOut() { opening_ = false; }
    bool closed() const { return !opening_ && gate_ <= 0.0F; }
    bool fading() const { return !opening_; }
    void open();

    /// Applies volume, fade and bound to `frames` frames in place. Playing thread only.
    void apply(float* left, float* right, int frames);

  private:
    std::array<std::atomic<float>, 2> target_{1.0F, 1.0F};
    std::array<float, 2> volume_{1.0F, 1.0F};
    float gate_ = 1.0F;
    bool opening_ = true;
    float step_;
};

/// Leaves what is below 0.8 as it is and bends what is above so that 1 is never passed.
float bounded(float sample);

}  // namespace synth
