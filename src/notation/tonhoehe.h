#pragma once
#include "base/i16.h"

namespace notation {

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

/// Which of the two staves.
namespace schluessel {
inline constexpr int violin = 0;
inline constexpr int bass = 1;
}  // namespace schluessel

// Heights. A staff surface is 144 pixels high; a step of the scale is 4 pixels, an octave 28. The
// lines of the treble staff lie at 64 to 96, those of the bass staff at 48 to 80.

/// A height from the bottom of the surface as y from its top, and back.
constexpr i16 SpiegelY(i16 h) { return 144 - h; }

/// Height of the C with this MIDI number. @param s staff, 0 treble, else bass.
constexpr i16 OktavBasis(i16 m, i16 s) {
    const i16 o = m / 12;
    return s == 0 ? (o - 5) * 28 + 40 : (o - 2) * 28 + 20;
}

/// Height of a note above the C of the octave that it sounds in. Cb and B# are written in another
/// octave than they sound in.
constexpr i16 QzOffset(i16 qz) {
    const i16 h = stammton(qz) * 4;
    if (qz == 1 || qz == 8) return h + 28;
    if (qz == 27 || qz == 34) return h - 28;
    return h;
}

/// Where a note head stands on its staff.
struct Stelle {
    i16 y;
    i16 oktave = 0;  ///< 1: written an octave lower, under the mark "8va"
    friend constexpr bool operator==(const Stelle&, const Stelle&) = default;
};

/// Where a note is written. Only the treble staff moves notes that are too high for it.
constexpr Stelle YAusTon(const Ton& ton, i16 s) {
    const i16 y = SpiegelY(OktavBasis(ton.midi, s) + QzOffset(ton.qz));
    if (s == 0 && y < 20) return {y + 28, 1};
    return {y, 0};
}

/// The letter on a position of the staff. @return 0 C .. 6 B.
constexpr int stammtonBei(i16 y, i16 s) { return (SpiegelY(y) - (8 * s + 12)) % 28 / 4; }

/// The note written at a position, the inverse of `YAusTon`. @param vz accidental, -2..2.
constexpr Ton TonAusY(i16 y, i16 s, i16 vz, i16 oktave) {
    const i16 d = SpiegelY(y) - (8 * s + 12);
    const i16 c = d / 28 * 12 + 48 - 24 * s + (oktave == 1 ? 12 : 0);
    const int stamm = stammtonBei(y, s);
    return {c + halbtoene(stamm) + vz, qzVon(stamm, vz)};
}

/// Accidentals that a task asks for, at least 1: those of its key, one less when the first note
/// of the scale carries one of its own.
/// @param quintLage key in fifths from C. @param ersterTon fifths of the scale's first note from
/// the key's.
constexpr i16 vorzeichenAnzahl(i16 quintLage, i16 ersterTon) {
    const int quinten = ersterTon + quintLage;
    const bool rein = quinten > -2 && quinten < 6;
    const i16 betrag = quintLage < 0 ? -quintLage : quintLage;
    const i16 n = betrag - (rein ? 0 : 1);
    return n == 0 ? i16(1) : n;
}

}  // namespace notation
