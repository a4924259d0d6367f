#pragma once
#include "base/rnd.h"
#include "engine/task.h"

namespace engine {

/// Whether a step of a melody is awkward: a tritone, a major sixth, a seventh either way, or a
/// minor sixth upward. Distances in semitones; the minor sixth downward is allowed.
constexpr bool awkward(int from, int to) {
    const int step = to - from;
    const int width = step < 0 ? -step : step;
    return width == 6 || width == 9 || width == 10 || width == 11 || step == 8;
}

/// Fills ton_abfolg(0..7) with a melodic order of noten(0..7) without awkward steps: every degree
/// once, starting on the final or sometimes the fifth, ending on the final or its octave.
/// @throws run-time error 5 when the notes allow no such melody.
void MelodikFolge(Task& a, base::Rnd& rnd);

}  // namespace engine
