#include "qt/sign.h"

#include <QPainter>
#include <QPainterPath>

namespace qt {

namespace {

const QColor right{0x1B, 0x7F, 0x3B}, wrong{0xB0, 0x1C, 0x1C};

}  // namespace

void paintSign(QPainter& painter, const QRectF& place, form::Verdict verdict) {
    if (verdict == form::Verdict::None) return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(verdict == form::Verdict::Right ? right : wrong);
    painter.drawEllipse(place);
    const auto at = [&place](double x, double y) {
        return QPointF(place.x() + x * place.width(), place.y() + y * place.height());
    };
    QPainterPath sign;
    if (verdict == form::Verdict::Right) {
        sign.moveTo(at(0.26, 0.52));
        sign.lineTo(at(0.44, 0.70));
        sign.lineTo(at(0.75, 0.33));
    } else {
        sign.moveTo(at(0.31, 0.31));
        sign.lineTo(at(0.69, 0.69));
        sign.moveTo(at(0.69, 0.31));
        sign.lineTo(at(0.31, 0.69));
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(
        QPen(Qt::white, place.width() * 0.13, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(sign);
    painter.restore();
}

}  // namespace qt
