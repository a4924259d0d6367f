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

using staff::Blatt;
using staff::Rechteck;
using staff::Schreibtaste;
using staff::ZugZustand;

namespace {

constexpr double largestScale = 4;
constexpr auto dragFormat = "application/x-melvora-accidental";

QRectF area(const Rechteck& r) { return QRectF(r.x, r.y, r.breite, r.hoehe); }

void paintSurface(QPainter& painter, const Blatt& surface) {
    const Rechteck& place = surface.lage();
    painter.save();
    painter.translate(place.x, place.y);
    painter.setClipRect(QRectF(0, 0, place.breite, place.hoehe));
    painter.fillRect(QRectF(0, 0, place.breite, place.hoehe), colour(surface.backColour()));
    PainterSurface target(painter, QRectF(0, 0, place.breite, place.hoehe));
    surface.zeigen(target);
    painter.restore();
}

/// What is drawn on a surface, without its ground.
QPixmap pictureOf(const Blatt& surface, double scale, double ratio) {
    QPixmap picture((QSizeF(surface.lage().breite, surface.lage().hoehe) * scale * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.scale(scale, scale);
    PainterSurface target(painter);
    surface.zeigen(target);
    return picture;
}

std::optional<Schreibtaste> writingKey(int key) {
    switch (key) {
        case Qt::Key_Left:
            return Schreibtaste::Links;
        case Qt::Key_Right:
            return Schreibtaste::Rechts;
        case Qt::Key_Up:
            return Schreibtaste::Hoch;
        case Qt::Key_Down:
            return Schreibtaste::Tief;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return Schreibtaste::Ablegen;
        default:
            if (key < Qt::Key_1 || key > Qt::Key_5) return {};
            return static_cast<Schreibtaste>(static_cast<int>(Schreibtaste::Eins) + key -
                                             Qt::Key_1);
    }
}

/// The surface that a drag began on.
const form::Control* sourceOf(const QDropEvent& event) {
    const auto* widget = dynamic_cast<StaffWidget*>(event.source());
    return widget && event.mimeData()->hasFormat(dragFormat) ? &widget->surface() : nullptr;
}

}  // namespace

StaffWidget::StaffWidget(Blatt& surface, QWidget* parent) : QWidget(parent), surface_(surface) {
    for (form::Control* control : surface.form().controls())
        if (control->container() == &surface && control->kind() == form::Kind::Surface)
            held_.push_back(static_cast<Blatt*>(control));
    const auto follow = [this](Blatt& shown) {
        connections_.push_back(
            shown.changed.connect([this](form::Aspect aspect) { surfaceChanged(aspect); }));
    };
    follow(surface);
    for (Blatt* held : held_) follow(*held);
    setAcceptDrops(!held_.empty());
    if (surface.onTaste) setFocusPolicy(Qt::StrongFocus);
    if (surface.zugbild) setCursor(Qt::OpenHandCursor);
    setSizePolicy(held_.empty() ? QSizePolicy::Fixed : QSizePolicy::Expanding,
                  held_.empty() ? QSizePolicy::Fixed : QSizePolicy::Expanding);
}

void StaffWidget::surfaceChanged(form::Aspect aspect) {
    if (aspect != form::Aspect::Picture && aspect != form::Aspect::Visible &&
        aspect != form::Aspect::Colour)
        return;
    drawn_ = {};
    if (size_ != surface_.lage()) updateGeometry();
    size_ = surface_.lage();
    update();
}

QSize StaffWidget::sizeHint() const {
    const Rechteck& place = surface_.lage();
    return (QSizeF(place.breite, place.hoehe) * suite::scale()).toSize();
}

QSize StaffWidget::minimumSizeHint() const {
    return {surface_.lage().breite, surface_.lage().hoehe};
}

double StaffWidget::scale() const {
    const Rechteck& place = surface_.lage();
    if (place.breite == 0) return 1;
    const double fit =
        std::min({width() / double(place.breite), height() / double(place.hoehe), largestScale});
    return staffScale(fit, devicePixelRatioF());
}

/// On a whole pixel of the screen.
QPointF StaffWidget::origin() const {
    const Rechteck& place = surface_.lage();
    const double ratio = devicePixelRatioF();
    const auto middle = [&](double room, double taken) {
        return std::round((room - taken * scale()) / 2 * ratio) / ratio;
    };
    return {middle(width(), place.breite), middle(height(), place.hoehe)};
}

QPointF StaffWidget::placeOf(const Blatt& surface, QPointF point) const {
    if (&surface != &surface_) point += QPointF(surface.lage().x, surface.lage().y);
    return origin() + point * scale();
}

/// Drawn once for what stands there and its size.
const QPixmap& StaffWidget::drawn() {
    const double ratio = devicePixelRatioF();
    const Rechteck& place = surface_.lage();
    const QSize pixels = (QSizeF(place.breite, place.hoehe) * scale() * ratio).toSize();
    if (drawn_.size() == pixels && drawn_.devicePixelRatio() == ratio) return drawn_;
    drawn_ = QPixmap(pixels);
    drawn_.setDevicePixelRatio(ratio);
    QPainter painter(&drawn_);
    painter.scale(scale(), scale());
    paintSurface(painter, surface_);
    for (const Blatt* held : held_)
        if (held->visible()) paintSurface(painter, *held);
    if (surface_.beschreibung)
        setAccessibleDescription(QString::fromStdString(surface_.beschreibung()));
    return drawn_;
}

void StaffWidget::paintEvent(QPaintEvent*) {
    if (surface_.lage().breite == 0) return;
    QPainter painter(this);
    painter.drawPixmap(origin(), drawn());
    if (!isEnabled()) {
        QColor veil = suite::page;
        veil.setAlpha(90);
        painter.fillRect(QRectF(origin(), QSizeF(drawn_.deviceIndependentSize())), veil);
    }
    if (surface_.marke().breite > 0 && (hasFocus() || !surface_.onTaste)) paintMark(painter);
}

/// A tint that leaves what is written black, and a frame.
void StaffWidget::paintMark(QPainter& painter) const {
    const QRectF mark = area(surface_.marke());
    const QRectF place(placeOf(surface_, mark.topLeft()), mark.size() * scale());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    painter.setPen(QPen(suite::accent, 1.5));
    painter.setBrush(QColor(0xE9, 0xF0, 0xF8));
    painter.drawRoundedRect(place.adjusted(1, 1, -1, -1), 4, 4);
}

void StaffWidget::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->pos();
    if (surface_.onTaste) setFocus(Qt::MouseFocusReason);
}

void StaffWidget::mouseMoveEvent(QMouseEvent* event) {
    const int distance = (event->pos() - pressed_).manhattanLength();
    if (!surface_.zugbild || !(event->buttons() & Qt::LeftButton) ||
        distance < QApplication::startDragDistance())
        return;
    const QPixmap picture = pictureOf(*surface_.zugbild, suite::scale(), devicePixelRatioF());
    auto* drag = new QDrag(this);
    auto* content = new QMimeData;
    content->setData(dragFormat, QByteArray::number(surface_.index()));
    drag->setMimeData(content);
    drag->setPixmap(picture);
    // To the left of the pointer, as an accidental stands to the left of its note.
    const QSizeF size = picture.deviceIndependentSize();
    drag->setHotSpot(QPointF(size.width(), size.height() / 2).toPoint());
    drag->exec(Qt::CopyAction);
}

Blatt* StaffWidget::target() const {
    for (Blatt* held : held_)
        if (held->visible()) return held;
    return nullptr;
}

bool StaffWidget::within(const Blatt& surface, QPointF position) const {
    const QSizeF size = QSizeF(surface.lage().breite, surface.lage().hoehe) * scale();
    return QRectF(placeOf(surface, {}), size).contains(position);
}

staff::Zug StaffWidget::dragAt(const form::Control& source, QPointF position) const {
    const QPointF at = (position - placeOf(*target(), {})) / scale();
    return {source, static_cast<float>(at.x()), static_cast<float>(at.y())};
}

bool StaffWidget::dragTo(const form::Control& source, QPointF position) {
    Blatt* seen = target();
    if (seen && !within(*seen, position)) seen = nullptr;
    if (entered_ != seen) dragAway();
    if (!seen) return false;
    const staff::Zug drag = dragAt(source, position);
    if (!entered_) seen->ueber(drag, ZugZustand::Betreten);
    seen->ueber(drag, ZugZustand::Ueber);
    entered_ = seen;
    source_ = &source;
    return !seen->wuerdeAblehnen(drag);
}

bool StaffWidget::dropAt(const form::Control& source, QPointF position) {
    dragTo(source, position);
    if (!entered_) return false;
    std::exchange(entered_, nullptr)->ablegen(dragAt(source, position));
    return true;
}

void StaffWidget::dragAway() {
    if (entered_) entered_->ueber({*source_, 0, 0}, ZugZustand::Verlassen);
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
    if (!key || !surface_.onTaste) return QWidget::keyPressEvent(event);
    surface_.taste(*key);
}

void StaffWidget::changeEvent(QEvent* event) {
    if (event->type() != QEvent::EnabledChange) return;
    // A task that closes takes the accidental out of the user's hand.
    if (!isEnabled()) QDrag::cancel();
    // Who writes by keys can begin as soon as the staff is open.
    if (isEnabled() && surface_.onTaste) setFocus(Qt::OtherFocusReason);
    update();
}

}  // namespace qt
