#pragma once
#include "core/zustand.h"

namespace engine {

using base::i16;

/// Mark of a right first answer in `punkte`.
inline constexpr float rightAtOnce = -4.0F;

/// Penalty for an answer slower than the limit, both in tenths of a second: 0 within it, else from
/// 1 up by a tenth for every two tenths over.
float ZeitStrafeBerechnen(float AntwDau, i16 zeit_faktor);

/// Wrong answers that a task to be named allows, at most 4: one fewer than there are answers.
i16 wrongAnswersAllowed(const core::Zustand& z);

/// The code under which a scale that was named wrongly is remembered: it is weighted more, too.
/// @param asked signed code of the task.
i16 confusedCode(const core::Zustand& z, int skala_nr, i16 asked);

}  // namespace engine
