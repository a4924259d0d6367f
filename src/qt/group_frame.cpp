#include "qt/group_frame.h"

#include "suite/look.h"

#include <QPainter>

namespace qt {

void GroupFrame::setColour(const QColor& colour) {
    colour_ = colour;
    update();
}

void GroupFrame::paintEvent(QPaintEvent*) {
    if (!colour_.isValid()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(suite::line);
    painter.setBrush(colour_);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), suite::radius,
                            suite::radius);
}

}  // namespace qt
