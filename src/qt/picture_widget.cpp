#include "qt/picture_widget.h"

#include "qt/painter_surface.h"
#include "staff/scale_picture.h"
#include "suite/look.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace qt {

namespace {

/// Room around a picture.
constexpr int besideIt = 6, aboveIt = 3;

}  // namespace

PictureWidget::PictureWidget(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize PictureWidget::sizeHint() const {
    const auto [width, height] = staff::pictureSize(number_);
    return {width + 2 * besideIt, height + 2 * aboveIt};
}

QSize PictureWidget::minimumSizeHint() const {
    const auto [width, height] = staff::pictureSize(number_);
    return {width * 3 / 4, height * 3 / 4};
}

void PictureWidget::setPicture(int number) {
    number_ = number;
    drawn_ = {};
    updateGeometry();
    update();
}

void PictureWidget::setColour(const QColor& colour) {
    colour_ = colour;
    update();
}

/// Drawn once for a size: a repaint in another colour costs no strokes. It is all in black, so that
/// how much of it covers a pixel says everything.
const QImage& PictureWidget::drawn() {
    const double ratio = devicePixelRatioF();
    const QSize pixels = (QSizeF(size()) * ratio).toSize();
    if (drawn_.size() == pixels && drawn_.devicePixelRatio() == ratio) return drawn_;
    drawn_ = QImage(pixels, QImage::Format_Alpha8);
    drawn_.setDevicePixelRatio(ratio);
    drawn_.fill(0);
    const auto [wide, high] = staff::pictureSize(number_);
    const double scale = staffScale(
        std::min((width() - 2.0 * besideIt) / wide, (height() - 2.0 * aboveIt) / high), ratio);
    QPainter painter(&drawn_);
    painter.translate(std::round((width() - wide * scale) / 2 * ratio) / ratio,
                      std::round((height() - high * scale) / 2 * ratio) / ratio);
    painter.scale(scale, scale);
    PainterSurface surface(painter);
    staff::paintPicture(surface, number_);
    return drawn_;
}

void PictureWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour_);
    painter.drawRoundedRect(rect(), 4, 4);
    painter.drawImage(0, 0, drawn());
    if (!hasFocus()) return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(suite::accent, 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), 4, 4);
}

void PictureWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()) && clicked) clicked();
}

void PictureWidget::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Select && clicked)
        clicked();
    else
        QWidget::keyPressEvent(event);
}

void PictureWidget::changeEvent(QEvent* event) {
    if (event->type() != QEvent::EnabledChange) return;
    setCursor(isEnabled() ? Qt::PointingHandCursor : Qt::ArrowCursor);
    update();
}

}  // namespace qt
