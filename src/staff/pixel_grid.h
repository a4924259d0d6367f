#pragma once
#include "staff/surface.h"

#include <cstddef>
#include <string>
#include <vector>

namespace staff {

/// A grid of pixels, painted as the strokes say, without smoothing. Texts are left out. What lies
/// outside is cut off.
class PixelGrid final : public Surface {
  public:
    PixelGrid(int width, int height);

    /// White outside.
    Colour at(int x, int y) const;
    /// A part of the picture, one line of text per row: '#' black, '.' white, '+' anything else.
    std::string drawing(const Rect& part) const;

    void clear() override;
    void fill(const Rect& r, Colour farbe) override;
    void line(int x1, int y1, int x2, int y2, Colour farbe,
              LineStyle style = LineStyle::Solid) override;
    void shape(Shape shape, int x, int y, Colour farbe) override;
    void curve(Curve curve, int x, int y, Colour farbe) override;
    void disc(double x, double y, double radius, Colour farbe) override;
    void text(int, int, std::string_view, Colour) override {}

  private:
    std::size_t offset(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
               static_cast<std::size_t>(x);
    }
    void plot(int x, int y, Colour farbe);

    int width_, height_;
    std::vector<Colour> pixels_;
};

}  // namespace staff
