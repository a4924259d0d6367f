#pragma once
#include "sound/midi_output.h"
#include "synth/post.h"

#include <functional>
#include <memory>
#include <string>

namespace synth {

/// Makes the MIDI output from the loadable library libmelvora-synth.so, which is looked for beside
/// the executable and in ../lib/melvora. The synthesiser brings some sixty libraries along: they
/// cost nothing until the first call, and stay loaded from then on.
/// Throws std::runtime_error that says which file could not be loaded and why.
std::unique_ptr<sound::MidiOutput> loadSynthOutput(const Post& post);

/// Measures every instrument of a font with that library, and keeps the table in a folder.
/// @param progress called with the number of instruments measured so far, of 128.
/// @return the table's file. Throws std::runtime_error that says what cannot be used.
std::string measureFont(const std::string& font, const std::string& folder,
                        const std::function<void(int measured)>& progress);

}  // namespace synth
