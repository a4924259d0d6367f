#include "qt/group_frame.h"

#include "suite/look.h"

#include <QFocusEvent>
#include <QPainter>
#include <QRadioButton>

namespace qt {

void GroupFrame::setColour(const QColor& colour) {
    colour_ = colour;
    if (colour.isValid()) {
        // What is locked can still be read.
        QPalette letters = palette();
        for (const auto role : {QPalette::WindowText, QPalette::Text})
            letters.setColor(QPalette::Disabled, role,
                             suite::readable(letters.color(QPalette::Disabled, role), colour));
        setPalette(letters);
    }
    update();
}

void GroupFrame::focusInEvent(QFocusEvent* event) {
    QWidget* first = nullptr;
    for (QWidget* child : findChildren<QWidget*>()) {
        if (!child->isEnabled() || !child->isVisible() || !(child->focusPolicy() & Qt::TabFocus))
            continue;
        const auto* option = qobject_cast<QRadioButton*>(child);
        if (!first || (option && option->isChecked())) first = child;
    }
    if (first) first->setFocus(event->reason());
}

void GroupFrame::paintEvent(QPaintEvent*) {
    if (!colour_.isValid()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(suite::edge(colour_));
    painter.setBrush(colour_);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), suite::radius,
                            suite::radius);
}

}  // namespace qt
