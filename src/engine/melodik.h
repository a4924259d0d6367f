#pragma once
#include "base/rnd.h"
#include "engine/aufgabe.h"

namespace engine {

/// Whether a step of a melody is awkward: a tritone, a major sixth, a seventh either way, or a
/// minor sixth upward. Distances in semitones; the minor sixth downward is allowed.
constexpr bool unsanglich(int von, int nach) {
    const int schritt = nach - von;
    const int weite = schritt < 0 ? -schritt : schritt;
    return weite == 6 || weite == 9 || weite == 10 || weite == 11 || schritt == 8;
}

/// Fills ton_abfolg(0..7) with a melodic order of noten(0..7) without awkward steps: every degree
/// once, starting on the final or sometimes the fifth, ending on the final or its octave.
/// @throws run-time error 5 when the notes allow no such melody.
void MelodikFolge(Aufgabe& a, base::Rnd& rnd);

}  // namespace engine
