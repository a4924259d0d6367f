#pragma once
#include "core/zustand.h"
#include "engine/exercise.h"

namespace engine {

using base::i16;

/// Mark of a right first answer in `punkte`.
inline constexpr float rightAtOnce = -4.0F;

/// Penalty for an answer slower than the limit, both in tenths of a second: 0 within it, else from
/// 1 up by a tenth for every two tenths over.
float ZeitStrafeBerechnen(float AntwDau, i16 zeit_faktor);

/// The wrong answer at which a task is lost: the fourth, or, where there are fewer answers to give,
/// the one that leaves only the right one.
i16 wrongAnswersAllowed(const core::Zustand& z, const Exercise& exercise);

/// The code under which a scale that was named wrongly is remembered: it is weighted more, too.
/// @param asked signed code of the task.
i16 confusedCode(const core::Zustand& z, int skala_nr, i16 asked);

}  // namespace engine
