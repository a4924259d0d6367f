#pragma once
#include "staff/surface.h"

#include <algorithm>

namespace staff {

/// The pixels of a horizontal or vertical line, whose last point is not painted.
constexpr Rect lineRect(int x1, int y1, int x2, int y2) {
    // Drawn to the left or upward, the first point is the right or lower one.
    if (y1 == y2) return x1 < x2 ? Rect{x1, y1, x2 - x1, 1} : Rect{x2 + 1, y1, x1 - x2, 1};
    return y1 < y2 ? Rect{x1, y1, 1, y2 - y1} : Rect{x1, y2 + 1, 1, y1 - y2};
}

/// Calls `f` with the parts of a line that are painted: the whole, or dots of two pixels with two
/// between. Dots stand where they stand on every other line, so that a mended piece fits.
template <class F>
void forEachPiece(const Rect& line, LineStyle style, F f) {
    if (style == LineStyle::Solid) return f(line);
    constexpr int dot = 2, spacing = 4;
    const int end = line.x + line.width;
    for (int x = line.x - line.x % spacing; x < end; x += spacing) {
        const int left = std::max(x, line.x);
        f(Rect{left, line.y, std::min(x + dot, end) - left, line.height});
    }
}

}  // namespace staff
