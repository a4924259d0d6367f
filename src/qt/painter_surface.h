#pragma once
#include "notation/flaeche.h"

#include <QPainter>

namespace qt {

inline QColor colour(base::Colour c) { return {c.r, c.g, c.b}; }

/// Draws strokes with a painter, smooth at any scale.
class PainterSurface final : public notation::Flaeche {
  public:
    explicit PainterSurface(QPainter& painter) : painter_(painter) {
        painter_.setRenderHint(QPainter::Antialiasing);
        painter_.translate(0.5, 0.5);
    }
    void linie(double x1, double y1, double x2, double y2, base::Colour farbe,
               double breite) override;
    void scheibe(double x, double y, double radius, base::Colour farbe) override;

  private:
    QPainter& painter_;
};

}  // namespace qt
