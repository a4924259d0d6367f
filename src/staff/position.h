#pragma once
#include "core/fifths.h"

namespace staff {

using base::i16;
using core::accidental;
using core::letter;
using core::Pitch;
using core::pitchClass;
using core::QzMitte;
using core::qzOf;
using core::semitones;

/// Which of the two staves.
namespace clef {
inline constexpr int treble = 0;
inline constexpr int bass = 1;
}  // namespace clef

// Heights. A staff surface is 144 pixels high; a step of the scale is 4 pixels, an octave 28. The
// lines of the treble staff lie at 64 to 96, those of the bass staff at 48 to 80.

/// A height from the bottom of the surface as y from its top, and back.
constexpr i16 SpiegelY(i16 h) { return 144 - h; }

/// Height of the C with this MIDI number. @param s staff, 0 treble, else bass.
constexpr i16 OktavBasis(i16 m, i16 s) {
    const i16 o = m / 12;
    return s == 0 ? (o - 5) * 28 + 40 : (o - 2) * 28 + 20;
}

/// Height of a note above the C of the octave that it sounds in.
constexpr i16 QzOffset(i16 qz) { return core::lettersAboveC(qz) * 4; }

/// Where a note head stands on its staff.
struct Position {
    i16 y;
    i16 octave = 0;  ///< 1: written an octave lower, under the mark "8va"
    friend constexpr bool operator==(const Position&, const Position&) = default;
};

/// Where a note is written. Only the treble staff moves notes that are too high for it.
constexpr Position YAusTon(const Pitch& pitch, i16 s) {
    const i16 y = SpiegelY(OktavBasis(pitch.midi, s) + QzOffset(pitch.qz));
    if (s == 0 && y < 20) return {y + 28, 1};
    return {y, 0};
}

/// The letter on a position of the staff. @return 0 C .. 6 B.
constexpr int letterAt(i16 y, i16 s) { return (SpiegelY(y) - (8 * s + 12)) % 28 / 4; }

/// The note written at a position, the inverse of `YAusTon`. @param vz accidental, -2..2.
constexpr Pitch TonAusY(i16 y, i16 s, i16 vz, i16 octave) {
    const i16 d = SpiegelY(y) - (8 * s + 12);
    const i16 c = d / 28 * 12 + 48 - 24 * s + (octave == 1 ? 12 : 0);
    const int letter = letterAt(y, s);
    return {c + semitones(letter) + vz, qzOf(letter, vz)};
}

}  // namespace staff
