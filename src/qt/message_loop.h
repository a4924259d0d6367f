#pragma once
#include "form/message_loop.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <memory>
#include <unordered_map>

namespace qt {

/// The toolkit's event loop and the system's clock.
class QtMessageLoop final : public form::MessageLoop {
  public:
    QtMessageLoop();
    base::Moment now() const override;
    float clock() const override;
    void arm(form::Timer& timer, int milliseconds) override;
    void disarm(form::Timer& timer) override;
    void doEvents() override;
    void wait(double milliseconds, const bool& abort) override;
    void runUntil(const std::function<bool()>& done) override;
    void post(std::function<void()> call) override;

  private:
    static base::Moment systemTime();

    QObject context_;
    const float start_;  ///< seconds since midnight
    QElapsedTimer running_;
    std::unordered_map<form::Timer*, std::unique_ptr<QTimer>> timers_;
};

}  // namespace qt
