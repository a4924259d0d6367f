#include "qt/play_mark.h"

#include "suite/look.h"

#include <QPainter>

namespace qt {

PlayMark::PlayMark(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    next_.setTimerType(Qt::PreciseTimer);
    connect(&next_, &QTimer::timeout, this, [this] {
        if (++step_ + 1 >= flow_.steps) next_.stop();
        update();
    });
}

QSize PlayMark::sizeHint() const { return {120, static_cast<int>(14 * suite::scale())}; }

void PlayMark::setFlow(const form::Flow& flow) {
    flow_ = flow;
    step_ = 0;
    if (flow.steps > 1)
        next_.start(flow.milliseconds);
    else
        next_.stop();
    update();
}

void PlayMark::paintEvent(QPaintEvent*) {
    if (flow_.steps == 0) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double apart = static_cast<double>(width()) / flow_.steps, middle = height() / 2.0;
    for (int i = 0; i < flow_.steps; ++i) {
        const double radius = i == step_ ? middle - 1 : middle - 4;
        painter.setPen(QPen(suite::accent, 1.5));
        painter.setBrush(i <= step_ ? QBrush(suite::accent) : QBrush(Qt::white));
        painter.drawEllipse(QPointF(apart * (i + 0.5), middle), radius, radius);
    }
}

}  // namespace qt
