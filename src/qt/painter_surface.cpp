#include "qt/painter_surface.h"

#include "staff/kurve.h"
#include "staff/linien.h"
#include "staff/umriss.h"

#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace qt {

using staff::Rechteck;

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

QRectF PainterSurface::onDevice(const Rechteck& r) const {
    return painter_.deviceTransform().mapRect(QRectF(r.x - 0.5, r.y - 0.5, r.breite, r.hoehe));
}

/// All pixels of the device that a rectangle touches.
QRectF PainterSurface::wholePixels(const Rechteck& r) const {
    constexpr double hair = 1e-6;
    const QRectF device = onDevice(r);
    return {QPointF(std::floor(device.left() + hair), std::floor(device.top() + hair)),
            QPointF(std::ceil(device.right() - hair), std::ceil(device.bottom() - hair))};
}

/// @param devicePixels whole pixels of the device.
void PainterSurface::fuellePixel(const QRectF& devicePixels, base::Colour farbe) {
    const QRectF logical = painter_.deviceTransform().inverted().mapRect(devicePixels);
    painter_.setRenderHint(QPainter::Antialiasing, false);
    painter_.fillRect(logical, colour(farbe));
    painter_.setRenderHint(QPainter::Antialiasing);
}

void PainterSurface::fuellen(const Rechteck& r, base::Colour farbe) {
    fuellePixel(wholePixels(r), farbe);
}

/// Every line is equally thick, and lies where its neighbours expect it.
void PainterSurface::linie(int x1, int y1, int x2, int y2, base::Colour farbe,
                           staff::Linienart art) {
    const double thick = std::max(1.0, std::round(painter_.deviceTransform().m11()));
    const bool level = y1 == y2;
    staff::jedesStueck(staff::linienRechteck(x1, y1, x2, y2), art, [&](const Rechteck& part) {
        const QPointF middle = onDevice(part).center();
        QRectF pixels = wholePixels(part);
        if (level) {
            pixels.setTop(std::round(middle.y() - thick / 2));
            pixels.setHeight(thick);
        } else {
            pixels.setLeft(std::round(middle.x() - thick / 2));
            pixels.setWidth(thick);
        }
        fuellePixel(pixels, farbe);
    });
}

void PainterSurface::figur(staff::Figur figur, int x, int y, base::Colour farbe) {
    QPainterPath path;
    for (const auto& line : staff::umriss(figur)) {
        QPolygonF polygon;
        for (const auto& [px, py] : line) polygon << QPointF(x + px, y + py);
        path.addPolygon(polygon);
        path.closeSubpath();
    }
    painter_.fillPath(path, colour(farbe));
}

/// Both edges of the curve as one shape, with round ends.
void PainterSurface::kurve(staff::Kurve kurve, int x, int y, base::Colour farbe) {
    const auto points = staff::kurvenpunkte(kurve);
    const std::size_t last = points.size() - 1;
    QPolygonF left, right;
    for (std::size_t i = 0; i <= last; ++i) {
        const auto &before = points[i == 0 ? 0 : i - 1], &after = points[std::min(i + 1, last)];
        const double dx = after.x - before.x, dy = after.y - before.y;
        const double half = points[i].breite / 2 / std::hypot(dx, dy);
        const QPointF middle(x + points[i].x, y + points[i].y), across(-dy * half, dx * half);
        left << middle + across;
        right << middle - across;
    }
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    std::reverse(right.begin(), right.end());
    path.addPolygon(left + right);
    path.closeSubpath();
    painter_.fillPath(path, colour(farbe));
    for (const auto& end : {points.front(), points.back()})
        scheibe(x + end.x, y + end.y, end.breite / 2, farbe);
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
