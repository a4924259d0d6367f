#pragma once
#include "base/i16.h"

namespace core {

using base::i16;

/// Fifths number of C. A spelled pitch is its place on the line of fifths: a fifth up adds 1, a
/// sharp adds 7, a flat takes 7 away; F 14, C 15, G 16, D 17, A 18, E 19, B 20.
inline constexpr int QzMitte = 15;

/// -2 double flat, -1 flat, 0 none, 1 sharp, 2 double sharp.
constexpr int accidental(int qz) { return qz / 7 - 2; }
/// 0 C .. 11 B.
constexpr int pitchClass(int qz) { return (7 * qz + 3) % 12; }
/// 0 C, 1 D .. 6 B.
constexpr int letter(int qz) {
    const int t = qz % 7;
    return t / 2 + 3 - 3 * (t % 2);
}
/// Semitones of a letter above C. @param letter 0 C .. 6 B.
constexpr int semitones(int letter) { return letter * 2 - (letter > 2 ? 1 : 0); }

/// Fifths number of a letter with its accidental.
/// @param letter 0 C .. 6 B. @param accidental -2..2.
constexpr int qzOf(int letter, int accidental) {
    const int e = semitones(letter);
    return e + QzMitte + 7 * accidental - (e > 4 ? 6 : 0);
}

/// A spelled note: its MIDI number and its fifths number.
struct Pitch {
    i16 midi = 0;
    i16 qz = QzMitte;
    friend constexpr bool operator==(const Pitch&, const Pitch&) = default;
};

/// The note of its letter without accidental.
constexpr Pitch withoutAccidental(const Pitch& ton) {
    const i16 qz = ton.qz % 7 + 14;
    return {ton.midi + (qz - ton.qz) / 7, qz};
}

/// Letters from the C of the octave that a note sounds in up to its own. Cb and B# are written in
/// another octave than they sound in.
constexpr int lettersAboveC(int qz) {
    const int octave = qz == 1 || qz == 8 ? 7 : qz == 27 || qz == 34 ? -7 : 0;
    return letter(qz) + octave;
}

}  // namespace core
