#pragma once
#include "staff/flaeche.h"
#include "staff/tonhoehe.h"

#include <vector>

namespace staff {

/// Size of every scale picture, in logical pixels.
inline constexpr int bildBreite = 270;
inline constexpr int bildHoehe = 86;
/// Pictures of scales are numbered 0 to `bilderAnz` - 1; some numbers no scale reaches.
inline constexpr int bilderAnz = 80;
/// A quarter note, as in the tempo of an exercise.
inline constexpr int viertelnote = bilderAnz;

/// Size of a picture, in logical pixels.
struct Bildgroesse {
    int breite, hoehe;
};
constexpr Bildgroesse bildGroesse(int nummer) {
    return nummer == viertelnote ? Bildgroesse{12, 26} : Bildgroesse{bildBreite, bildHoehe};
}

/// A scale as the picture store numbers it.
struct Bild {
    int skal_typ;
    int skala_nr;
    bool gleicheFinalis;  ///< modes all from C; otherwise all with one key signature
};

/// @return false for a number that no scale reaches.
bool bildVon(int nummer, Bild& bild);

/// The notes of a scale in its picture, ascending from C4 (or the degree of the mode), spelled:
/// each letter once where it has seven tones, a tetrachord on four letters.
std::vector<Ton> bildToene(const Bild& bild);

/// Draws a picture; of a scale five lines, clef, heads, accidentals. A number that no picture has
/// draws nothing.
void BildMalen(Flaeche& ziel, int nummer);

}  // namespace staff
