#include "qt/staff_widget.h"

#include "form/form.h"
#include "qt/painter_surface.h"
#include "suite/look.h"

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>

#include <cmath>
#include <optional>
#include <utility>

namespace qt {

using staff::Canvas;
using staff::DragPhase;
using staff::Rect;
using staff::WritingKey;

namespace {

constexpr double largestScale = 4;
constexpr auto dragFormat = "application/x-melvora-accidental";

QRectF area(const Rect& r) { return QRectF(r.x, r.y, r.width, r.height); }

void paintCanvas(QPainter& painter, const Canvas& canvas) {
    const Rect& place = canvas.bounds();
    painter.save();
    painter.translate(place.x, place.y);
    painter.setClipRect(QRectF(0, 0, place.width, place.height));
    painter.fillRect(QRectF(0, 0, place.width, place.height), colour(canvas.backColour()));
    PainterSurface target(painter, QRectF(0, 0, place.width, place.height));
    canvas.replay(target);
    painter.restore();
}

/// What is drawn on a canvas, without its ground.
QPixmap pictureOf(const Canvas& canvas, double scale, double ratio) {
    QPixmap picture(
        (QSizeF(canvas.bounds().width, canvas.bounds().height) * scale * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.scale(scale, scale);
    PainterSurface target(painter);
    canvas.replay(target);
    return picture;
}

std::optional<WritingKey> writingKey(int key) {
    switch (key) {
        case Qt::Key_Left:
            return WritingKey::Left;
        case Qt::Key_Right:
            return WritingKey::Right;
        case Qt::Key_Up:
            return WritingKey::Up;
        case Qt::Key_Down:
            return WritingKey::Down;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return WritingKey::Drop;
        default:
            if (key < Qt::Key_1 || key > Qt::Key_5) return {};
            return static_cast<WritingKey>(static_cast<int>(WritingKey::One) + key - Qt::Key_1);
    }
}

/// The canvas that a drag began on.
const form::Control* sourceOf(const QDropEvent& event) {
    const auto* widget = dynamic_cast<StaffWidget*>(event.source());
    return widget && event.mimeData()->hasFormat(dragFormat) ? &widget->canvas() : nullptr;
}

}  // namespace

StaffWidget::StaffWidget(Canvas& canvas, QWidget* parent) : QWidget(parent), canvas_(canvas) {
    for (form::Control* control : canvas.form().controls())
        if (control->container() == &canvas && control->kind() == form::Kind::Canvas)
            held_.push_back(static_cast<Canvas*>(control));
    const auto follow = [this](Canvas& shown) {
        connections_.push_back(
            shown.changed.connect([this](form::Aspect aspect) { canvasChanged(aspect); }));
    };
    follow(canvas);
    for (Canvas* held : held_) follow(*held);
    setAcceptDrops(!held_.empty());
    if (canvas.onKey) setFocusPolicy(Qt::StrongFocus);
    if (canvas.dragPicture) setCursor(Qt::OpenHandCursor);
    const auto policy = held_.empty() ? QSizePolicy::Maximum : QSizePolicy::Expanding;
    setSizePolicy(policy, policy);
}

void StaffWidget::canvasChanged(form::Aspect aspect) {
    if (aspect != form::Aspect::Picture && aspect != form::Aspect::Visible &&
        aspect != form::Aspect::Colour)
        return;
    drawn_ = {};
    if (size_ != canvas_.bounds()) updateGeometry();
    size_ = canvas_.bounds();
    update();
}

QSize StaffWidget::sizeHint() const {
    const Rect& place = canvas_.bounds();
    return (QSizeF(place.width, place.height) * askedScale_).toSize();
}

QSize StaffWidget::minimumSizeHint() const {
    return {canvas_.bounds().width, canvas_.bounds().height};
}

void StaffWidget::askForScale(double scale) {
    if (scale == askedScale_) return;
    askedScale_ = scale;
    updateGeometry();
}

double StaffWidget::scale() const { return scaleIn(size()); }

double StaffWidget::scaleIn(QSizeF room) const {
    const Rect& place = canvas_.bounds();
    if (place.width == 0) return 1;
    const double fit =
        std::min({room.width() / place.width, room.height() / place.height, largestScale});
    return staffScale(fit, devicePixelRatioF());
}

/// On a whole pixel of the screen.
QPointF StaffWidget::origin() const {
    const Rect& place = canvas_.bounds();
    const double ratio = devicePixelRatioF();
    const auto middle = [&](double room, double taken) {
        return std::round((room - taken * scale()) / 2 * ratio) / ratio;
    };
    return {middle(width(), place.width), middle(height(), place.height)};
}

QPointF StaffWidget::placeOf(const Canvas& canvas, QPointF point) const {
    if (&canvas != &canvas_) point += QPointF(canvas.bounds().x, canvas.bounds().y);
    return origin() + point * scale();
}

/// Drawn once for what stands there and its size.
const QPixmap& StaffWidget::drawn() {
    const double ratio = devicePixelRatioF();
    const Rect& place = canvas_.bounds();
    const QSize pixels = (QSizeF(place.width, place.height) * scale() * ratio).toSize();
    if (drawn_.size() == pixels && drawn_.devicePixelRatio() == ratio) return drawn_;
    drawn_ = QPixmap(pixels);
    drawn_.setDevicePixelRatio(ratio);
    QPainter painter(&drawn_);
    painter.scale(scale(), scale());
    paintCanvas(painter, canvas_);
    for (const Canvas* held : held_)
        if (held->visible()) paintCanvas(painter, *held);
    if (canvas_.inWords) setAccessibleDescription(QString::fromStdString(canvas_.inWords()));
    return drawn_;
}

void StaffWidget::paintEvent(QPaintEvent*) {
    if (canvas_.bounds().width == 0) return;
    QPainter painter(this);
    painter.drawPixmap(origin(), drawn());
    if (!isEnabled()) {
        QColor veil = suite::page;
        veil.setAlpha(90);
        painter.fillRect(QRectF(origin(), QSizeF(drawn_.deviceIndependentSize())), veil);
    }
    if (canvas_.mark().width > 0 && (hasFocus() || !canvas_.onKey)) paintMark(painter);
}

/// A tint that leaves what is written black, and a frame.
void StaffWidget::paintMark(QPainter& painter) const {
    const QRectF mark = area(canvas_.mark());
    const QRectF place(placeOf(canvas_, mark.topLeft()), mark.size() * scale());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    painter.setPen(QPen(suite::accent, 1.5));
    painter.setBrush(QColor(0xE9, 0xF0, 0xF8));
    painter.drawRoundedRect(place.adjusted(1, 1, -1, -1), 4, 4);
}

void StaffWidget::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->pos();
    if (canvas_.onKey) setFocus(Qt::MouseFocusReason);
}

void StaffWidget::mouseMoveEvent(QMouseEvent* event) {
    const int distance = (event->pos() - pressed_).manhattanLength();
    if (!canvas_.dragPicture || !(event->buttons() & Qt::LeftButton) ||
        distance < QApplication::startDragDistance())
        return;
    const QPixmap picture = pictureOf(*canvas_.dragPicture, suite::scale(), devicePixelRatioF());
    auto* drag = new QDrag(this);
    auto* content = new QMimeData;
    content->setData(dragFormat, QByteArray::number(canvas_.index()));
    drag->setMimeData(content);
    drag->setPixmap(picture);
    // To the left of the pointer, as an accidental stands to the left of its note.
    const QSizeF size = picture.deviceIndependentSize();
    drag->setHotSpot(QPointF(size.width(), size.height() / 2).toPoint());
    drag->exec(Qt::CopyAction);
}

Canvas* StaffWidget::target() const {
    for (Canvas* held : held_)
        if (held->visible()) return held;
    return nullptr;
}

bool StaffWidget::within(const Canvas& canvas, QPointF position) const {
    const QSizeF size = QSizeF(canvas.bounds().width, canvas.bounds().height) * scale();
    return QRectF(placeOf(canvas, {}), size).contains(position);
}

staff::Drag StaffWidget::dragAt(const form::Control& source, QPointF position) const {
    const QPointF at = (position - placeOf(*target(), {})) / scale();
    return {source, static_cast<float>(at.x()), static_cast<float>(at.y())};
}

bool StaffWidget::dragTo(const form::Control& source, QPointF position) {
    Canvas* seen = target();
    if (seen && !within(*seen, position)) seen = nullptr;
    if (entered_ != seen) dragAway();
    if (!seen) return false;
    const staff::Drag drag = dragAt(source, position);
    if (!entered_) seen->dragOver(drag, DragPhase::Enter);
    seen->dragOver(drag, DragPhase::Over);
    entered_ = seen;
    source_ = &source;
    return !seen->wouldRefuse(drag);
}

bool StaffWidget::dropAt(const form::Control& source, QPointF position) {
    dragTo(source, position);
    if (!entered_) return false;
    std::exchange(entered_, nullptr)->drop(dragAt(source, position));
    return true;
}

void StaffWidget::dragAway() {
    if (entered_) entered_->dragOver({*source_, 0, 0}, DragPhase::Leave);
    entered_ = nullptr;
}

/// Taken wherever it enters: only then its moves are told.
void StaffWidget::dragEnterEvent(QDragEnterEvent* event) {
    const form::Control* source = sourceOf(*event);
    if (!source || !target()) return event->ignore();
    dragTo(*source, event->position());
    event->acceptProposedAction();
}

void StaffWidget::dragMoveEvent(QDragMoveEvent* event) {
    const form::Control* source = sourceOf(*event);
    if (source && dragTo(*source, event->position()))
        event->acceptProposedAction();
    else
        event->ignore();
}

void StaffWidget::dragLeaveEvent(QDragLeaveEvent*) { dragAway(); }

void StaffWidget::dropEvent(QDropEvent* event) {
    const form::Control* source = sourceOf(*event);
    if (source && dropAt(*source, event->position())) event->acceptProposedAction();
}

void StaffWidget::keyPressEvent(QKeyEvent* event) {
    const auto key = writingKey(event->key());
    if (!key || !canvas_.onKey) return QWidget::keyPressEvent(event);
    canvas_.key(*key);
}

void StaffWidget::changeEvent(QEvent* event) {
    if (event->type() != QEvent::EnabledChange) return;
    // A task that closes takes the accidental out of the user's hand.
    if (!isEnabled()) QDrag::cancel();
    // Who writes by keys can begin as soon as the staff is open.
    if (isEnabled() && canvas_.onKey) setFocus(Qt::OtherFocusReason);
    update();
}

}  // namespace qt
