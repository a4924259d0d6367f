#include "staff/pixel_grid.h"

#include "staff/curve.h"
#include "staff/lines.h"
#include "staff/outline.h"

#include <algorithm>
#include <cmath>

namespace staff {

PixelGrid::PixelGrid(int width, int height)
    : width_(width),
      height_(height),
      pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
              base::colours::white) {}

Colour PixelGrid::at(int x, int y) const {
    if (x < 0 || y < 0 || x >= width_ || y >= height_) return base::colours::white;
    return pixels_[offset(x, y)];
}

std::string PixelGrid::drawing(const Rect& part) const {
    std::string text;
    for (int y = part.y; y < part.y + part.height; ++y) {
        for (int x = part.x; x < part.x + part.width; ++x)
            text += at(x, y) == base::colours::white   ? '.'
                    : at(x, y) == base::colours::black ? '#'
                                                       : '+';
        text += '\n';
    }
    return text;
}

void PixelGrid::plot(int x, int y, Colour farbe) {
    if (x < 0 || y < 0 || x >= width_ || y >= height_) return;
    pixels_[offset(x, y)] = farbe;
}

void PixelGrid::clear() { std::ranges::fill(pixels_, base::colours::white); }

void PixelGrid::fill(const Rect& r, Colour farbe) {
    for (int y = r.y; y < r.y + r.height; ++y)
        for (int x = r.x; x < r.x + r.width; ++x) plot(x, y, farbe);
}

void PixelGrid::line(int x1, int y1, int x2, int y2, Colour farbe, LineStyle style) {
    forEachPiece(lineRect(x1, y1, x2, y2), style, [&](const Rect& piece) { fill(piece, farbe); });
}

void PixelGrid::shape(Shape shape, int x, int y, Colour farbe) {
    for (const Stroke& s : shape)
        forEachPixel(s, [&](int dx, int dy) { plot(x + dx, y + dy, farbe); });
}

void PixelGrid::curve(Curve curve, int x, int y, Colour farbe) {
    for (const CurvePoint& p : curvePoints(curve)) disc(x + p.x, y + p.y, p.width / 2, farbe);
}

void PixelGrid::disc(double x, double y, double radius, Colour farbe) {
    for (int py = static_cast<int>(std::floor(y - radius)); py <= y + radius; ++py)
        for (int px = static_cast<int>(std::floor(x - radius)); px <= x + radius; ++px)
            if (std::hypot(px - x, py - y) <= radius) plot(px, py, farbe);
}

}  // namespace staff
