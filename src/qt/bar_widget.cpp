#include "qt/bar_widget.h"

#include "look/look.h"

#include <QPainter>

namespace qt {

void BarWidget::setPercent(int percent) {
    percent_ = percent;
    setAccessibleDescription(QString::number(percent) + QStringLiteral(" %"));
    update();
}

void BarWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(look::line);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(area, 4, 4);
    if (percent_ <= 0 || !isEnabled()) return;
    QRectF filled = area.adjusted(1, 1, -1, -1);
    filled.setWidth(filled.width() * percent_ / 100);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look::accent);
    painter.drawRoundedRect(filled, 3, 3);
}

}  // namespace qt
