#pragma once
#include "sound/midi_output.h"
#include "synth/post.h"
#include "synth/synth_options.h"

#include <memory>

namespace synth {

/// The drill's MIDI output: the built-in synthesiser and the external ports of the machine.
///
/// The volume is full again after every `open`. Bends sent before `start` hold for the queue;
/// `stop`, `close` and `open` centre them, and `open` sets all channels to program 0. A device that
/// is closed takes nothing: what is queued, sent or started then is dropped.
/// @param post hands the calls of `queueEmpty` and `problemChanged` to the drill's thread; calls
///        that arrive after the output's end do nothing. The output ends on the drill's thread.
/// Throws soundfont::FluidError when the synthesiser library cannot be used at all.
std::unique_ptr<sound::MidiOutput> makeSynthOutput(SynthOptions options, Post post);

}  // namespace synth
