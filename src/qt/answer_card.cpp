#include "qt/answer_card.h"

#include "suite/look.h"

#include <QPainter>

namespace qt {

void AnswerCard::setColour(const QColor& colour) {
    colour_ = colour;
    update();
}

void AnswerCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::white);
    painter.setPen(QPen(colour_, 3));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), suite::radius,
                            suite::radius);
}

}  // namespace qt
