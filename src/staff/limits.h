#pragma once
#include "staff/position.h"

#include <algorithm>

namespace staff {

/// What the limits of a task follow from.
struct Range {
    i16 quintLage;    ///< key in fifths from C
    i16 firstFifths;  ///< fifths of the scale's first note from the key's: stufenQz(skala_nr, 1)
    i16 transpLage;   ///< transposition of the task, semitones
    i16 FrquMinAkt;   ///< lowest MIDI note of the exercise
    i16 FrquMaxAkt;   ///< highest
};

/// Limit lines, 7 pixels outside the notes that they guard.
struct Limits {
    i16 oben, unten;
    constexpr i16 highest() const { return oben + 7; }  ///< y of the highest note allowed
    constexpr i16 lowest() const { return unten - 7; }  ///< and of the lowest
    /// The place between them that is nearest to y. There the height of a drop does not matter, on
    /// a limit it does.
    constexpr int nearestBetween(int y) const {
        constexpr int step = 4;  // pixels from one place of the staff to the next
        return std::max<int>(highest() + step, std::min<int>(lowest() - step, y));
    }
};

/// The limits on a staff: the exercise's range to the octave, and on the side of the other staff
/// no further than about the C between them.
constexpr Limits limitsOn(i16 s, const Range& u) {
    i16 high = (u.transpLage + u.FrquMaxAkt) / 12 * 12;
    i16 low = (u.transpLage + u.FrquMinAkt) / 12 * 12;
    i16 qzTop = u.quintLage + QzMitte + u.firstFifths;
    i16 qzBottom = qzTop;
    if (s == clef::treble && low < 48) {
        qzBottom = 14;
        low = 48;
    }
    if (s != clef::treble && high > 60) {
        qzTop = 16;
        high = 60;
    }
    return {SpiegelY(OktavBasis(high, s) + QzOffset(qzTop) + 7),
            SpiegelY(OktavBasis(low, s) + QzOffset(qzBottom) - 7)};
}

}  // namespace staff
