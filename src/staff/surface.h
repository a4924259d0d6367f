#pragma once
#include "base/colour.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace staff {

using base::Colour;

/// A straight run of pixels from the first point on; the last point itself is not painted.
struct Stroke {
    std::int8_t x1, y1, x2, y2;
};
/// Strokes that make one shape, relative to its anchor. The strokes outlive every surface.
using Shape = std::span<const Stroke>;

/// A point of a smooth curve, and how wide the curve is there.
struct CurvePoint {
    double x, y, width;
};
/// A curve through all its points, relative to its anchor. The points outlive every surface.
using Curve = std::span<const CurvePoint>;

enum class LineStyle { Solid, Dotted };

/// Pixels x .. x + width - 1, y .. y + height - 1.
struct Rect {
    int x = 0, y = 0, width = 0, height = 0;
    friend constexpr bool operator==(const Rect&, const Rect&) = default;
    constexpr bool contains(const Rect& r) const {
        return r.x >= x && r.y >= y && r.x + r.width <= x + width && r.y + r.height <= y + height;
    }
};

/// A surface that notation is drawn on, in logical pixels: x grows to the right, y downward, and
/// the whole numbers are the middles of pixels. It exists so that the same strokes reach a screen
/// at any scale, a grid of pixels and a recorder.
class Surface {
  public:
    virtual ~Surface() = default;
    virtual void clear() = 0;
    virtual void fill(const Rect& r, Colour farbe) = 0;
    /// A line one pixel wide, horizontal or vertical, without its last point.
    virtual void line(int x1, int y1, int x2, int y2, Colour farbe,
                      LineStyle style = LineStyle::Solid) = 0;
    virtual void shape(Shape shape, int x, int y, Colour farbe) = 0;
    virtual void curve(Curve curve, int x, int y, Colour farbe) = 0;
    /// A filled circle.
    virtual void disc(double x, double y, double radius, Colour farbe) = 0;
    /// A short text, about 10 pixels high, from its upper left corner on.
    virtual void text(int x, int y, std::string_view text, Colour farbe) = 0;
};

}  // namespace staff
