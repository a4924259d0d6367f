#pragma once
#include "base/colour.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace staff {

using base::Colour;

/// A straight run of pixels from the first point on; the last point itself is not painted.
struct Strich {
    std::int8_t x1, y1, x2, y2;
};
/// Strokes that make one shape, relative to its anchor. The strokes outlive every surface.
using Figur = std::span<const Strich>;

/// A point of a smooth curve, and how wide the curve is there.
struct Kurvenpunkt {
    double x, y, breite;
};
/// A curve through all its points, relative to its anchor. The points outlive every surface.
using Kurve = std::span<const Kurvenpunkt>;

enum class Linienart { Voll, Gepunktet };

/// Pixels x .. x + breite - 1, y .. y + hoehe - 1.
struct Rechteck {
    int x = 0, y = 0, breite = 0, hoehe = 0;
    friend constexpr bool operator==(const Rechteck&, const Rechteck&) = default;
    constexpr bool enthaelt(const Rechteck& r) const {
        return r.x >= x && r.y >= y && r.x + r.breite <= x + breite && r.y + r.hoehe <= y + hoehe;
    }
};

/// A surface that notation is drawn on, in logical pixels: x grows to the right, y downward, and
/// the whole numbers are the middles of pixels. It exists so that the same strokes reach a screen
/// at any scale, a grid of pixels and a recorder.
class Flaeche {
  public:
    virtual ~Flaeche() = default;
    virtual void leeren() = 0;
    virtual void fuellen(const Rechteck& r, Colour farbe) = 0;
    /// A line one pixel wide, horizontal or vertical, without its last point.
    virtual void linie(int x1, int y1, int x2, int y2, Colour farbe,
                       Linienart art = Linienart::Voll) = 0;
    virtual void figur(Figur figur, int x, int y, Colour farbe) = 0;
    virtual void kurve(Kurve kurve, int x, int y, Colour farbe) = 0;
    /// A filled circle.
    virtual void scheibe(double x, double y, double radius, Colour farbe) = 0;
    /// A short text, about 10 pixels high, from its upper left corner on.
    virtual void text(int x, int y, std::string_view text, Colour farbe) = 0;
};

}  // namespace staff
