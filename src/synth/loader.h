#pragma once
#include "sound/midi_output.h"
#include "synth/post.h"

#include <memory>

namespace synth {

/// Makes the MIDI output from the loadable library libmelvora-synth.so, which is looked for beside
/// the executable and in ../lib/melvora. The synthesiser brings some sixty libraries along: they
/// cost nothing until the first call, and stay loaded from then on.
/// Throws std::runtime_error that says which file could not be loaded and why.
std::unique_ptr<sound::MidiOutput> loadSynthOutput(const Post& post);

}  // namespace synth
