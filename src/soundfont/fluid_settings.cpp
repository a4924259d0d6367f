#include "soundfont/fluid_settings.h"

#include "soundfont/fluid_error.h"

namespace soundfont {

fluid_settings_t* makeSettings() {
    quietFluidLog();
    fluid_settings_t* settings = made(new_fluid_settings(), "settings");
    fluid_settings_setnum(settings, "synth.gain", 1.0);
    fluid_settings_setnum(settings, "synth.sample-rate", sampleRate);
    fluid_settings_setint(settings, "synth.polyphony", 64);
    fluid_settings_setint(settings, "synth.cpu-cores", 1);
    fluid_settings_setint(settings, "synth.chorus.active", 0);
    fluid_settings_setint(settings, "synth.reverb.active", 0);
    fluid_settings_setint(settings, "synth.lock-memory", 0);
    fluid_settings_setint(settings, "synth.dynamic-sample-loading", 1);
    return settings;
}

}  // namespace soundfont
