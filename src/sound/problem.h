#pragma once
#include "core/worte.h"
#include "form/controls.h"
#include "sound/midi_output.h"

namespace sound {

/// Tells in a label why nothing can be heard and what to do; hides it while all is well.
void showProblem(form::Label& label, SoundProblem problem, core::Worte& words);

}  // namespace sound
