#include "qt/bar_widget.h"

#include "suite/look.h"

#include <QPainter>

namespace qt {

void BarWidget::setPercent(int percent) {
    percent_ = percent;
    describe();
    update();
}

void BarWidget::setMeaning(const QString& words) {
    setToolTip(words);
    describe();
}

void BarWidget::describe() {
    setAccessibleDescription(toolTip().isEmpty() ? QString::number(percent_) + QStringLiteral(" %")
                                                 : toolTip());
}

void BarWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(suite::line);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(area, 4, 4);
    if (percent() == 0) return;
    QRectF filled = area.adjusted(1, 1, -1, -1);
    filled.setWidth(filled.width() * percent() / 100);
    painter.setPen(Qt::NoPen);
    painter.setBrush(suite::accent);
    painter.drawRoundedRect(filled, 3, 3);
}

}  // namespace qt
