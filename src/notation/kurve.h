#pragma once
#include "notation/flaeche.h"

#include <array>
#include <cstddef>

namespace notation {

/// A point of a curve, and how wide the curve is there.
struct Punkt {
    double x, y, breite;
};

/// Draws a smooth curve through all points (Catmull-Rom) as short strokes, its width running along.
/// @param x, y where the curve's origin lies.
template <std::size_t n>
void kurveMalen(Flaeche& flaeche, double x, double y, const std::array<Punkt, n>& punkte) {
    constexpr int teile = 8;
    constexpr auto letzter = static_cast<std::ptrdiff_t>(n) - 1;
    const auto an = [&](std::ptrdiff_t i) -> const Punkt& {
        return punkte[static_cast<std::size_t>(i < 0 ? 0 : i > letzter ? letzter : i)];
    };
    const auto mischen = [](double p0, double p1, double p2, double p3, double t) {
        return 0.5 * (2 * p1 + (p2 - p0) * t + (2 * p0 - 5 * p1 + 4 * p2 - p3) * t * t +
                      (3 * p1 - p0 - 3 * p2 + p3) * t * t * t);
    };
    Punkt vorher = punkte[0];
    for (std::ptrdiff_t i = 0; i < letzter; ++i)
        for (int teil = 1; teil <= teile; ++teil) {
            const double t = static_cast<double>(teil) / teile;
            const Punkt jetzt{mischen(an(i - 1).x, an(i).x, an(i + 1).x, an(i + 2).x, t),
                              mischen(an(i - 1).y, an(i).y, an(i + 1).y, an(i + 2).y, t),
                              an(i).breite + (an(i + 1).breite - an(i).breite) * t};
            flaeche.linie(x + vorher.x, y + vorher.y, x + jetzt.x, y + jetzt.y,
                          base::colours::black, jetzt.breite);
            vorher = jetzt;
        }
}

}  // namespace notation
