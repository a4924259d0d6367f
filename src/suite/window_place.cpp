#include "suite/window_place.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>

namespace suite {

WindowPlace::WindowPlace(QWidget* window, const Read& read, Keep keep)
    : QObject(window), window_(window), place_(read()), keep_(std::move(keep)) {
    if (!place_.isEmpty()) window_->restoreGeometry(place_);
    window_->installEventFilter(this);
}

bool WindowPlace::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Hide && !event->spontaneous())
        if (const QByteArray place = window_->saveGeometry(); place != place_) {
            place_ = place;
            keep_(place);
        }
    return QObject::eventFilter(watched, event);
}

}  // namespace suite
