#pragma once
#include <string_view>

namespace notation {

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

/// Fifths number of a letter with its accidental.
/// @param stammton 0 C .. 6 B. @param vorzeichen -2..2.
constexpr int qzVon(int stammton, int vorzeichen) {
    const int halbtoene = stammton * 2 - (stammton > 2 ? 1 : 0);
    return halbtoene + QzMitte + 7 * vorzeichen - (halbtoene > 4 ? 6 : 0);
}

/// A spelled note: its MIDI number and its fifths number.
struct Ton {
    int midi = 0;
    int qz = QzMitte;
    friend constexpr bool operator==(const Ton&, const Ton&) = default;
};

/// Height of a note above C of its octave, in logical pixels: 4 for each step. Cb and B# lie in
/// another octave than they sound.
int QzOffset(int qz);

/// Where a note stands on the treble staff: y of its head on a surface 144 high, 4 pixels a step;
/// E4, the bottom line, at 96.
int yImViolinschluessel(const Ton& ton);

}  // namespace notation
