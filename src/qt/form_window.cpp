#include "qt/form_window.h"

#include "qt/staff_widget.h"
#include "suite/look.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QBackingStore>
#include <QCloseEvent>
#include <QHideEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QStyle>

#include <algorithm>
#include <optional>

namespace qt {

namespace {

std::optional<form::Key> keyOf(int key) {
    using Kind = form::Key::Kind;
    if (key >= Qt::Key_0 && key <= Qt::Key_9) return form::Key{Kind::Digit, key - Qt::Key_0};
    switch (key) {
        case Qt::Key_Space:
            return form::Key{Kind::Space};
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return form::Key{Kind::Enter};
        case Qt::Key_Escape:
            return form::Key{Kind::Escape};
        case Qt::Key_F1:
            return form::Key{Kind::Help};
        default:
            return {};
    }
}

}  // namespace

FormWindow::FormWindow(form::Form& form, std::optional<QPoint>& middle)
    : form_(form), middle_(middle), keys_(*this), binder_(form, *this, keys_) {
    setObjectName(QString::fromStdString(form.name()));
    changed_ = form.changed.connect([this] { follow(); });
    qApp->installEventFilter(this);
}

FormWindow::~FormWindow() {
    if (waiting_) QApplication::restoreOverrideCursor();
}

void FormWindow::follow() {
    setWindowTitle(QString::fromStdString(form_.caption()));
    setEnabled(form_.enabled());
    const bool waiting = form_.pointer() == form::Pointer::Hourglass;
    if (waiting && !waiting_) QApplication::setOverrideCursor(Qt::WaitCursor);
    if (!waiting && waiting_) QApplication::restoreOverrideCursor();
    waiting_ = waiting;
    if (form_.whitened()) {
        QPalette white = palette();
        white.setColor(QPalette::Window, Qt::white);
        setPalette(white);
    }
    if (form_.visible() && !isVisible()) open();
    if (!form_.visible()) hide();
}

void FormWindow::open() {
    if (!opened_) {
        if (beforeOpening) beforeOpening();
        suite::darkenFrames(*this);
        if (const QWidget* active = QApplication::activeWindow())
            middle_ = active->geometry().center();
        QScreen* there = middle_ ? QApplication::screenAt(*middle_) : nullptr;
        const QRect screen = (there ? there : QApplication::primaryScreen())->availableGeometry();
        const QSize wanted = (opening_ * suite::scale()).expandedTo(minimumSizeHint());
        const QSize size = wanted.boundedTo(screen.size() - QSize(16, 40));
        QRect place = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, screen);
        if (there) place.moveCenter(*middle_);
        place.moveRight(std::min(place.right(), screen.right()));
        place.moveBottom(std::min(place.bottom(), screen.bottom()));
        place.moveLeft(std::max(place.left(), screen.left()));
        place.moveTop(std::max(place.top(), screen.top()));
        setGeometry(place);
        opened_ = true;
    }
    show();
    keys_.changed();
    raise();
    activateWindow();
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    form_.handle({"closeBox.", [this] { form_.closeBox(); }});
}

/// What nobody sees needs no pixels: for a big window they are megabytes.
void FormWindow::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (!event->spontaneous()) middle_ = geometry().center();
    if (QBackingStore* pixels = backingStore(); pixels && !event->spontaneous())
        pixels->resize({1, 1});
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    if (!watched->isWidgetType()) return false;
    auto& widget = static_cast<QWidget&>(*watched);
    if (event->type() == QEvent::FocusIn && widget.window() == this)
        keys_.focused(widget, static_cast<const QFocusEvent&>(*event).reason());
    if (event->type() != QEvent::KeyPress) return false;
    const auto& press = static_cast<QKeyEvent&>(*event);
    const bool plain = (press.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    return widget.window() == this && plain && !press.isAutoRepeat() && isEnabled() &&
           keyPressed(widget, press.key());
}

bool FormWindow::keyPressed(QWidget& widget, int pressed) {
    const auto key = keyOf(pressed);
    if (!key) return false;
    const bool enter = key->kind == form::Key::Kind::Enter;
    const bool presses = enter || key->kind == form::Key::Kind::Space;
    if (presses && keys_.press(widget)) return true;
    auto* button = qobject_cast<QPushButton*>(&widget);
    if (enter && button && !form_.claimsEnter()) {
        button->click();
        return true;
    }
    const auto* staff = dynamic_cast<const StaffWidget*>(&widget);
    if (staff && enter && staff->takesEnter()) return false;
    // In a list both choose the item.
    if (presses && qobject_cast<QAbstractItemView*>(&widget)) return false;
    bool taken = false;
    form_.handle({"key.", [&] { taken = form_.key(*key); }});
    return taken;
}

}  // namespace qt
