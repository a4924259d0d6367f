#pragma once
#include "base/colour.h"

namespace notation {

/// A surface that notation is drawn on, in logical pixels: x grows to the right, y downward, and
/// the whole numbers are the middles of pixels. It exists so that the same strokes reach a screen
/// at any scale and a recorder.
class Flaeche {
  public:
    virtual ~Flaeche() = default;
    /// A stroke with round ends; with equal ends a point. @param breite in logical pixels.
    virtual void linie(double x1, double y1, double x2, double y2, base::Colour farbe,
                       double breite) = 0;
    /// A filled circle.
    virtual void scheibe(double x, double y, double radius, base::Colour farbe) = 0;
};

}  // namespace notation
