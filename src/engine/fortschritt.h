#pragma once
#include "core/zustand.h"
#include "engine/matbox.h"
#include "results/wertung.h"

namespace engine {

/// What an answer has led to.
enum class AufgZustand { Geschlossen = 1, Weiter = 3, TrainingBeendet = 4, PruefungBeendet = 5 };

/// Mark of a right first answer in `punkte`.
inline constexpr float gutschrift = -4.0F;

/// Penalty for an answer slower than the limit, both in tenths of a second: 0 within it, else from
/// 1 up by a tenth for every two tenths over.
float ZeitStrafeBerechnen(float AntwDau, i16 zeit_faktor);

/// Answer time in tenths of a second, a half rounded up. Times in seconds.
float antwortDauer(float antw_ende, float AntwDauStart, float AntwDau);

/// Wrong answers that a determine task allows, at most 4: one fewer than there are answers.
i16 erlaubteFehler(const core::Zustand& z, int verschiedeneSkalen);

/// How a training ended or goes on.
enum class Trainingsstand { Laeuft, Ziel, Gescheitert };

/// Scores the task in hand: books it and, in training, changes the weights.
/// @param fehlerMax error points that lose a task.
/// @return the points before booking.
float FortschrittWerten(core::Zustand& z, results::Wertung& wertung, Matbox& matbox, i16 fehlerMax);

/// Rebuilds the pool after a scored task and tells where the training stands.
Trainingsstand TrainingFortschreiben(core::Zustand& z, Matbox& matbox);

}  // namespace engine
