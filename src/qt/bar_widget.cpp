#include "qt/bar_widget.h"

#include "suite/look.h"

#include <QPainter>
#include <QToolTip>

namespace qt {

void BarWidget::setPercent(int percent) {
    percent_ = percent;
    describe();
    update();
}

void BarWidget::setMeaning(const QString& words) {
    setToolTip(words);
    setFocusPolicy(words.isEmpty() ? Qt::NoFocus : Qt::TabFocus);
    describe();
}

void BarWidget::describe() {
    setAccessibleDescription(toolTip().isEmpty() ? QString::number(percent_) + QStringLiteral(" %")
                                                 : toolTip());
}

void BarWidget::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    QToolTip::showText(mapToGlobal(rect().bottomLeft()), toolTip(), this);
    update();
}

void BarWidget::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    QToolTip::hideText();
    update();
}

void BarWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(hasFocus() ? QPen(suite::accent, 2) : QPen(suite::line));
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
