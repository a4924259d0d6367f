#include "qt/painter_surface.h"

namespace qt {

void PainterSurface::linie(double x1, double y1, double x2, double y2, base::Colour farbe,
                           double breite) {
    painter_.setPen(QPen(colour(farbe), breite, Qt::SolidLine, Qt::RoundCap));
    if (x1 == x2 && y1 == y2)
        painter_.drawPoint(QPointF(x1, y1));
    else
        painter_.drawLine(QPointF(x1, y1), QPointF(x2, y2));
}

void PainterSurface::scheibe(double x, double y, double radius, base::Colour farbe) {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(colour(farbe));
    painter_.drawEllipse(QPointF(x, y), radius, radius);
}

}  // namespace qt
