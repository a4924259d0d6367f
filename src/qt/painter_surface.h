#pragma once
#include "staff/flaeche.h"

#include <QPainter>

namespace qt {

inline QColor colour(base::Colour c) { return {c.r, c.g, c.b}; }

/// Draws with a painter: shapes, curves and circles smooth at any scale, lines and wipes on whole
/// pixels of the screen, so that they are crisp and take each other away without a trace.
class PainterSurface final : public staff::Flaeche {
  public:
    /// @param extent what `leeren` makes white, in logical pixels.
    explicit PainterSurface(QPainter& painter, const QRectF& extent = {});
    void leeren() override;
    void fuellen(const staff::Rechteck& r, base::Colour farbe) override;
    void linie(int x1, int y1, int x2, int y2, base::Colour farbe, staff::Linienart art) override;
    void figur(staff::Figur figur, int x, int y, base::Colour farbe) override;
    void kurve(staff::Kurve kurve, int x, int y, base::Colour farbe) override;
    void scheibe(double x, double y, double radius, base::Colour farbe) override;
    void text(int x, int y, std::string_view text, base::Colour farbe) override;

  private:
    QRectF onDevice(const staff::Rechteck& r) const;
    QRectF wholePixels(const staff::Rechteck& r) const;
    void fuellePixel(const QRectF& devicePixels, base::Colour farbe);

    QPainter& painter_;
    QRectF extent_;
};

/// The largest scale up to `fit` at which the lines of a staff lie whole pixels of the screen
/// apart.
double staffScale(double fit, double devicePixelRatio);

}  // namespace qt
