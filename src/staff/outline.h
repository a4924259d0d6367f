#pragma once
#include "staff/surface.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace staff {

/// Calls `f(x, y)` for every pixel of a stroke.
template <class F>
constexpr void forEachPixel(const Stroke& s, F f) {
    const int dx = s.x2 - s.x1, dy = s.y2 - s.y1;
    const int length = std::max(dx < 0 ? -dx : dx, dy < 0 ? -dy : dy);
    for (int i = 0; i < length; ++i) f(s.x1 + dx * i / length, s.y1 + dy * i / length);
}

/// Outline of a shape for smooth filling at any scale: closed lines around the squares of its
/// pixels, corners cut so that steps become slopes and curves while straight edges and widths stay.
/// A square reaches from x - 0.5 to x + 0.5.
using Polyline = std::vector<std::pair<double, double>>;
using Outline = std::vector<Polyline>;
Outline outline(Shape shape);

}  // namespace staff
