#pragma once
#include <fluidsynth.h>

#include <memory>

namespace soundfont {

/// Deleter that calls the library's own function for a type.
template <auto function>
struct Deleter {
    template <class T>
    void operator()(T* handle) const {
        function(handle);
    }
};

template <class T, auto function>
using Handle = std::unique_ptr<T, Deleter<function>>;

using FluidSettings = Handle<fluid_settings_t, delete_fluid_settings>;
using FluidSynth = Handle<fluid_synth_t, delete_fluid_synth>;
using FluidSequencer = Handle<fluid_sequencer_t, delete_fluid_sequencer>;
using FluidEvent = Handle<fluid_event_t, delete_fluid_event>;
using FluidDriver = Handle<fluid_audio_driver_t, delete_fluid_audio_driver>;

}  // namespace soundfont
