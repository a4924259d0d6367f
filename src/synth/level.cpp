#include "synth/level.h"

#include <algorithm>
#include <cmath>

namespace synth {

namespace {

constexpr double rampSeconds = 0.005;

float toward(float value, float target, float step) {
    return value < target ? std::min(value + step, target) : std::max(value - step, target);
}

}  // namespace

float bounded(float sample) {
    constexpr float knee = 0.8F;
    constexpr float room = 1.0F - knee;
    const float size = std::fabs(sample);
    if (size <= knee) return sample;
    return std::copysign(knee + room * std::tanh((size - knee) / room), sample);
}

Level::Level(double sampleRate) : step_(static_cast<float>(1.0 / (rampSeconds * sampleRate))) {}

void Level::setVolume(float left, float right) {
    target_[0] = left;
    target_[1] = right;
}

void Level::open() {
    opening_ = true;
    gate_ = 1.0F;
}

void Level::apply(float* left, float* right, int frames) {
    const std::array<float, 2> target{target_[0].load(), target_[1].load()};
    for (int i = 0; i < frames; ++i) {
        if (!opening_) gate_ = std::max(gate_ - step_, 0.0F);
        volume_[0] = toward(volume_[0], target[0], step_);
        volume_[1] = toward(volume_[1], target[1], step_);
        left[i] = bounded(left[i] * volume_[0] * gate_);
        right[i] = bounded(right[i] * volume_[1] * gate_);
    }
}

}  // namespace synth
