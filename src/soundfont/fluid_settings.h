#pragma once
#include "soundfont/fluid_handle.h"

namespace soundfont {

inline constexpr int sampleRate = 44100;

/// Settings of a synthesiser whose sound is dry: no chorus, which would smear the pitch. Samples
/// are read when an instrument is chosen, so a big font costs no more memory than what is heard of
/// it. The caller owns them. Throws FluidError.
fluid_settings_t* makeSettings();

}  // namespace soundfont
