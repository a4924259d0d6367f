#pragma once
#include "staff/flaeche.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace staff {

/// Calls `f(x, y)` for every pixel of a stroke.
template <class F>
constexpr void jederPunkt(const Strich& s, F f) {
    const int dx = s.x2 - s.x1, dy = s.y2 - s.y1;
    const int laenge = std::max(dx < 0 ? -dx : dx, dy < 0 ? -dy : dy);
    for (int i = 0; i < laenge; ++i) f(s.x1 + dx * i / laenge, s.y1 + dy * i / laenge);
}

/// Outline of a figure for smooth filling at any scale: closed lines around the squares of its
/// pixels, corners cut so that steps become slopes and curves while straight edges and widths stay.
/// A square reaches from x - 0.5 to x + 0.5.
using Linienzug = std::vector<std::pair<double, double>>;
using Umriss = std::vector<Linienzug>;
Umriss umriss(Figur figur);

}  // namespace staff
