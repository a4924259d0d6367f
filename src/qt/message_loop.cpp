#include "qt/message_loop.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace qt {

QtMessageLoop::QtMessageLoop() : start_(systemTime().sinceMidnight()) { running_.start(); }

float QtMessageLoop::clock() const {
    return static_cast<float>(static_cast<double>(start_) +
                              static_cast<double>(running_.nsecsElapsed()) / 1e9);
}

base::Moment QtMessageLoop::now() const { return systemTime(); }

base::Moment QtMessageLoop::systemTime() {
    const QDateTime moment = QDateTime::currentDateTime();
    const QDate date = moment.date();
    const QTime time = moment.time();
    return {date.year(),   date.month(),  date.day(), time.hour(),
            time.minute(), time.second(), time.msec()};
}

form::Connection QtMessageLoop::after(int milliseconds, std::function<void()> call) {
    auto held = std::make_shared<std::function<void()>>(std::move(call));
    QTimer::singleShot(std::max(1, milliseconds), Qt::PreciseTimer, &context_,
                       [awaited = std::weak_ptr(held)] {
                           if (const auto still = awaited.lock()) (*still)();
                       });
    return form::Connection(std::move(held));
}

void QtMessageLoop::doEvents() { QCoreApplication::processEvents(); }

void QtMessageLoop::wait(double milliseconds, const bool& abort) {
    QElapsedTimer elapsed;
    elapsed.start();
    QTimer wake;
    wake.setTimerType(Qt::PreciseTimer);
    while (!abort) {
        const double left = milliseconds - static_cast<double>(elapsed.nsecsElapsed()) / 1e6;
        if (left <= 0) return;
        wake.start(static_cast<int>(left) + 1);
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
}

void QtMessageLoop::runUntil(const std::function<bool()>& done) {
    while (!done())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

void QtMessageLoop::post(std::function<void()> call) {
    QMetaObject::invokeMethod(&context_, std::move(call), Qt::QueuedConnection);
}

}  // namespace qt
