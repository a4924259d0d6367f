#include "soundfont/fluid_error.h"

#include <fluidsynth.h>

namespace soundfont {

FluidError::FluidError(const std::string& what)
    : std::runtime_error("FluidSynth: " + what + "; check the installation of libfluidsynth3") {}

void quietFluidLog() {
    for (int level = FLUID_PANIC; level < LAST_LOG_LEVEL; ++level)
        fluid_set_log_function(
            level, [](int, const char*, void*) {}, nullptr);
}

}  // namespace soundfont
