#pragma once
#include "staff/tonhoehe.h"

#include <algorithm>

namespace staff {

/// What the limits of a task follow from.
struct Umfang {
    i16 quintLage;   ///< key in fifths from C
    i16 ersterTon;   ///< fifths of the scale's first note from the key's: stufenQz(skala_nr, 1)
    i16 transpLage;  ///< transposition of the task, semitones
    i16 FrquMinAkt;  ///< lowest MIDI note of the exercise
    i16 FrquMaxAkt;  ///< highest
};

/// Limit lines, 7 pixels outside the notes that they guard.
struct Grenze {
    i16 oben, unten;
    constexpr i16 hoechste() const { return oben + 7; }  ///< y of the highest note allowed
    constexpr i16 tiefste() const { return unten - 7; }  ///< and of the lowest
    /// The place between them that is nearest to y. There the height of a drop does not matter, on
    /// a limit it does.
    constexpr int dazwischen(int y) const {
        constexpr int platz = 4;  // pixels from one place of the staff to the next
        return std::max<int>(hoechste() + platz, std::min<int>(tiefste() - platz, y));
    }
};

/// The limits on a staff: the exercise's range to the octave, and on the side of the other staff
/// no further than about the C between them.
constexpr Grenze grenzenAuf(i16 s, const Umfang& u) {
    i16 hoch = (u.transpLage + u.FrquMaxAkt) / 12 * 12;
    i16 tief = (u.transpLage + u.FrquMinAkt) / 12 * 12;
    i16 qzOben = u.quintLage + QzMitte + u.ersterTon;
    i16 qzUnten = qzOben;
    if (s == schluessel::violin && tief < 48) {
        qzUnten = 14;
        tief = 48;
    }
    if (s != schluessel::violin && hoch > 60) {
        qzOben = 16;
        hoch = 60;
    }
    return {SpiegelY(OktavBasis(hoch, s) + QzOffset(qzOben) + 7),
            SpiegelY(OktavBasis(tief, s) + QzOffset(qzUnten) - 7)};
}

}  // namespace staff
