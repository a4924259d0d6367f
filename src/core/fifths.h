#pragma once
#include "base/i16.h"

namespace core {

using base::i16;

/// Fifths number of C. A spelled pitch is its place on the line of fifths: a fifth up adds 1, a
/// sharp adds 7, a flat takes 7 away; F 14, C 15, G 16, D 17, A 18, E 19, B 20.
inline constexpr int QzMitte = 15;

/// -2 double flat, -1 flat, 0 none, 1 sharp, 2 double sharp.
constexpr int vorzeichen(int qz) { return qz / 7 - 2; }
/// 0 C .. 11 B.
constexpr int tonklasse(int qz) { return (7 * qz + 3) % 12; }
/// 0 C, 1 D .. 6 B.
constexpr int stammton(int qz) {
    const int t = qz % 7;
    return t / 2 + 3 - 3 * (t % 2);
}
/// Semitones of a letter above C. @param stammton 0 C .. 6 B.
constexpr int halbtoene(int stammton) { return stammton * 2 - (stammton > 2 ? 1 : 0); }

/// Fifths number of a letter with its accidental.
/// @param stammton 0 C .. 6 B. @param vorzeichen -2..2.
constexpr int qzVon(int stammton, int vorzeichen) {
    const int e = halbtoene(stammton);
    return e + QzMitte + 7 * vorzeichen - (e > 4 ? 6 : 0);
}

/// A spelled note: its MIDI number and its fifths number.
struct Ton {
    i16 midi = 0;
    i16 qz = QzMitte;
    friend constexpr bool operator==(const Ton&, const Ton&) = default;
};

/// The note of its letter without accidental.
constexpr Ton ohneVorzeichen(const Ton& ton) {
    const i16 qz = ton.qz % 7 + 14;
    return {ton.midi + (qz - ton.qz) / 7, qz};
}

/// Letters from the C of the octave that a note sounds in up to its own. Cb and B# are written in
/// another octave than they sound in.
constexpr int buchstabenUeberC(int qz) {
    const int oktave = qz == 1 || qz == 8 ? 7 : qz == 27 || qz == 34 ? -7 : 0;
    return stammton(qz) + oktave;
}

}  // namespace core
