#include "qt/painter_surface.h"

#include "notation/kurve.h"
#include "notation/linien.h"
#include "notation/umriss.h"

#include <QPainterPath>

#include <cmath>

namespace qt {

using notation::Rechteck;

namespace {

constexpr int lineSpacing = 8;
constexpr int textHeight = 11;

}  // namespace

PainterSurface::PainterSurface(QPainter& painter, const QRectF& extent)
    : painter_(painter), extent_(extent) {
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.translate(0.5, 0.5);  // whole numbers are the middles of pixels
}

void PainterSurface::leeren() { painter_.fillRect(extent_.translated(-0.5, -0.5), Qt::white); }

/// @param devicePixels whole pixels of the device.
void PainterSurface::fuellePixel(const QRectF& devicePixels, base::Colour farbe) {
    const QRectF logical = painter_.deviceTransform().inverted().mapRect(devicePixels);
    painter_.setRenderHint(QPainter::Antialiasing, false);
    painter_.fillRect(logical, colour(farbe));
    painter_.setRenderHint(QPainter::Antialiasing);
}

void PainterSurface::fuellen(const Rechteck& r, base::Colour farbe) {
    const QRectF device =
        painter_.deviceTransform().mapRect(QRectF(r.x - 0.5, r.y - 0.5, r.breite, r.hoehe));
    fuellePixel(QRectF(QPointF(std::round(device.left()), std::round(device.top())),
                       QPointF(std::round(device.right()), std::round(device.bottom()))),
                farbe);
}

/// Every line is equally thick, and lies where its neighbours expect it.
void PainterSurface::linie(int x1, int y1, int x2, int y2, base::Colour farbe,
                           notation::Linienart art) {
    const double scale = painter_.deviceTransform().m11();
    const double thick = std::max(1.0, std::round(scale));
    notation::jedesStueck(notation::linienRechteck(x1, y1, x2, y2), art, [&](const Rechteck& part) {
        QRectF device = painter_.deviceTransform().mapRect(
            QRectF(part.x - 0.5, part.y - 0.5, part.breite, part.hoehe));
        const double left = std::round(device.left()), right = std::round(device.right());
        const double top = std::round(device.top()), bottom = std::round(device.bottom());
        if (y1 == y2)
            device = {left, std::round(device.center().y() - thick / 2), right - left, thick};
        else
            device = {std::round(device.center().x() - thick / 2), top, thick, bottom - top};
        fuellePixel(device, farbe);
    });
}

void PainterSurface::figur(notation::Figur figur, int x, int y, base::Colour farbe) {
    QPainterPath path;
    for (const auto& line : notation::umriss(figur)) {
        QPolygonF polygon;
        for (const auto& [px, py] : line) polygon << QPointF(x + px, y + py);
        path.addPolygon(polygon);
        path.closeSubpath();
    }
    painter_.fillPath(path, colour(farbe));
}

/// The two edges of the curve as one shape, with round ends.
void PainterSurface::kurve(notation::Kurve kurve, int x, int y, base::Colour farbe) {
    const auto points = notation::kurvenpunkte(kurve);
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    const auto at = [&](std::size_t i) { return QPointF(x + points[i].x, y + points[i].y); };
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        const QPointF a = at(i), b = at(i + 1);
        const double length = std::hypot(b.x() - a.x(), b.y() - a.y());
        const QPointF across((a.y() - b.y()) / length, (b.x() - a.x()) / length);
        const double ra = points[i].breite / 2, rb = points[i + 1].breite / 2;
        path.addPolygon(
            QPolygonF({a + across * ra, a - across * ra, b - across * rb, b + across * rb}));
        path.closeSubpath();
        path.addEllipse(b, rb, rb);
    }
    path.addEllipse(at(0), points[0].breite / 2, points[0].breite / 2);
    painter_.fillPath(path, colour(farbe));
}

void PainterSurface::scheibe(double x, double y, double radius, base::Colour farbe) {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(colour(farbe));
    painter_.drawEllipse(QPointF(x, y), radius, radius);
}

void PainterSurface::text(int x, int y, std::string_view text, base::Colour farbe) {
    QFont font = painter_.font();
    font.setPixelSize(textHeight);
    painter_.setFont(font);
    painter_.setPen(colour(farbe));
    painter_.drawText(QRectF(x, y, 100, textHeight + 3), Qt::AlignLeft | Qt::AlignVCenter,
                      QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

double staffScale(double fit, double devicePixelRatio) {
    const double perStep = lineSpacing * devicePixelRatio;
    return std::max(1.0, std::floor(fit * perStep + 1e-9)) / perStep;
}

}  // namespace qt
