#pragma once
#include "staff/flaeche.h"

#include <algorithm>

namespace staff {

/// The pixels of a horizontal or vertical line, whose last point is not painted.
constexpr Rechteck linienRechteck(int x1, int y1, int x2, int y2) {
    // Drawn to the left or upward, the first point is the right or lower one.
    if (y1 == y2) return x1 < x2 ? Rechteck{x1, y1, x2 - x1, 1} : Rechteck{x2 + 1, y1, x1 - x2, 1};
    return y1 < y2 ? Rechteck{x1, y1, 1, y2 - y1} : Rechteck{x1, y2 + 1, 1, y1 - y2};
}

/// Calls `f` with the parts of a line that are painted: the whole, or dots of two pixels with two
/// between. Dots stand where they stand on every other line, so that a mended piece fits.
template <class F>
void jedesStueck(const Rechteck& linie, Linienart art, F f) {
    if (art == Linienart::Voll) return f(linie);
    constexpr int punkt = 2, abstand = 4;
    const int ende = linie.x + linie.breite;
    for (int x = linie.x - linie.x % abstand; x < ende; x += abstand) {
        const int links = std::max(x, linie.x);
        f(Rechteck{links, linie.y, std::min(x + punkt, ende) - links, linie.hoehe});
    }
}

}  // namespace staff
