#include "synth/synth_output.h"

/// The one entry of the loadable library. The caller owns the output. Throws synth::FluidError.
extern "C" __attribute__((visibility("default"))) sound::MidiOutput* melvoraMakeSynthOutput(
    const synth::Post* post) {
    return synth::makeSynthOutput(synth::SynthOptions::fromEnvironment(), *post).release();
}
