#include "synth/audio_device.h"

#include "soundfont/fluid_error.h"
#include "soundfont/fluid_handle.h"
#include "synth/audio_presence.h"

#include <string>
#include <utility>
#include <vector>

namespace synth {

namespace {

/// Frames pulled at a time: smaller ones crackle on a busy machine, bigger ones are heard late.
constexpr int period = 1024;
constexpr int periods = 3;

class FluidDevice : public AudioDevice {
  public:
    FluidDevice(const std::string& driver, int sampleRate, Pull pull)
        : pull_(std::move(pull)), settings_(soundfont::made(new_fluid_settings(), "settings")) {
        fluid_settings_setstr(settings_.get(), "audio.driver", driver.c_str());
        fluid_settings_setint(settings_.get(), "audio.period-size", period);
        fluid_settings_setint(settings_.get(), "audio.periods", periods);
        fluid_settings_setstr(settings_.get(), "audio.pulseaudio.media-role", "music");
        fluid_settings_setnum(settings_.get(), "synth.sample-rate", sampleRate);
        driver_.reset(new_fluid_audio_driver2(settings_.get(), &FluidDevice::fill, this));
    }

    bool isOpen() const { return driver_ != nullptr; }

  private:
    static int fill(void* self, int frames, int, float**, int outputs, float** output) {
        if (outputs < 2) return FLUID_FAILED;
        static_cast<FluidDevice*>(self)->pull_(output[0], output[1], frames);
        return FLUID_OK;
    }

    Pull pull_;
    soundfont::FluidSettings settings_;
    soundfont::FluidDriver driver_;
};

}  // namespace

std::unique_ptr<AudioDevice> openFluidDevice(const std::string& driver, int sampleRate, Pull pull) {
    const auto names = driver.empty() ? presentDrivers() : std::vector{driver};
    for (const auto& name : names) {
        auto device = std::make_unique<FluidDevice>(name, sampleRate, pull);
        if (device->isOpen()) return device;
    }
    return nullptr;
}

}  // namespace synth
