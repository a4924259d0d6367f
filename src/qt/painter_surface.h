#pragma once
#include "staff/surface.h"

#include <QPainter>

namespace qt {

inline QColor colour(base::Colour c) { return {c.r, c.g, c.b}; }

/// Draws with a painter: shapes, curves and circles smooth at any scale, lines and wipes on whole
/// pixels of the screen, so that they are crisp and take each other away without a trace.
class PainterSurface final : public staff::Surface {
  public:
    /// @param extent what `clear` makes white, in logical pixels.
    explicit PainterSurface(QPainter& painter, const QRectF& extent = {});
    void clear() override;
    void fill(const staff::Rect& r, base::Colour farbe) override;
    void line(int x1, int y1, int x2, int y2, base::Colour farbe, staff::LineStyle style) override;
    void shape(staff::Shape shape, int x, int y, base::Colour farbe) override;
    void curve(staff::Curve curve, int x, int y, base::Colour farbe) override;
    void disc(double x, double y, double radius, base::Colour farbe) override;
    void text(int x, int y, std::string_view text, base::Colour farbe) override;

  private:
    QRectF onDevice(const staff::Rect& r) const;
    QRectF wholePixels(const staff::Rect& r) const;
    void fuellePixel(const QRectF& devicePixels, base::Colour farbe);

    QPainter& painter_;
    QRectF extent_;
};

/// The largest scale up to `fit` at which the lines of a staff lie whole pixels of the screen
/// apart.
double staffScale(double fit, double devicePixelRatio);

}  // namespace qt
