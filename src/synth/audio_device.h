#pragma once
#include <functional>
#include <memory>
#include <string>

namespace synth {

/// Renders the next frames into two channels.
using Pull = std::function<void(float* left, float* right, int frames)>;

/// A sound card or sound server that is open. It pulls from a thread of its own, from its making
/// until its end; after the end no call is under way.
class AudioDevice {
  public:
    virtual ~AudioDevice() = default;
};

/// Opens a device that calls `pull`, or gives null when there is none.
using OpenDevice = std::function<std::unique_ptr<AudioDevice>(Pull pull)>;

/// Opens an audio driver of FluidSynth.
/// @param driver its name, or empty for the first of pulseaudio and alsa that is there.
std::unique_ptr<AudioDevice> openFluidDevice(const std::string& driver, int sampleRate, Pull pull);

}  // namespace synth
