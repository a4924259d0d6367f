#include "qt/painter_surface.h"

#include "staff/curve.h"
#include "staff/lines.h"
#include "staff/outline.h"

#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace qt {

using staff::Rect;

namespace {

constexpr int lineSpacing = 8;
constexpr int textHeight = 11;

}  // namespace

PainterSurface::PainterSurface(QPainter& painter, const QRectF& extent)
    : painter_(painter), extent_(extent) {
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.translate(0.5, 0.5);  // whole numbers are the middles of pixels
}

void PainterSurface::clear() { painter_.fillRect(extent_.translated(-0.5, -0.5), Qt::white); }

QRectF PainterSurface::onDevice(const Rect& r) const {
    return painter_.deviceTransform().mapRect(QRectF(r.x - 0.5, r.y - 0.5, r.width, r.height));
}

/// All pixels of the device that a rectangle touches.
QRectF PainterSurface::wholePixels(const Rect& r) const {
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

void PainterSurface::fill(const Rect& r, base::Colour farbe) { fuellePixel(wholePixels(r), farbe); }

/// Every line is equally thick, and lies where its neighbours expect it.
void PainterSurface::line(int x1, int y1, int x2, int y2, base::Colour farbe,
                          staff::LineStyle style) {
    const double thick = std::max(1.0, std::round(painter_.deviceTransform().m11()));
    const bool level = y1 == y2;
    staff::forEachPiece(staff::lineRect(x1, y1, x2, y2), style, [&](const Rect& part) {
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

void PainterSurface::shape(staff::Shape shape, int x, int y, base::Colour farbe) {
    QPainterPath path;
    for (const auto& line : staff::outline(shape)) {
        QPolygonF polygon;
        for (const auto& [px, py] : line) polygon << QPointF(x + px, y + py);
        path.addPolygon(polygon);
        path.closeSubpath();
    }
    painter_.fillPath(path, colour(farbe));
}

/// Both edges of the curve as one shape, with round ends.
void PainterSurface::curve(staff::Curve curve, int x, int y, base::Colour farbe) {
    const auto points = staff::curvePoints(curve);
    const std::size_t last = points.size() - 1;
    QPolygonF left, right;
    for (std::size_t i = 0; i <= last; ++i) {
        const auto &before = points[i == 0 ? 0 : i - 1], &after = points[std::min(i + 1, last)];
        const double dx = after.x - before.x, dy = after.y - before.y;
        const double half = points[i].width / 2 / std::hypot(dx, dy);
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
        disc(x + end.x, y + end.y, end.width / 2, farbe);
}

void PainterSurface::disc(double x, double y, double radius, base::Colour farbe) {
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
