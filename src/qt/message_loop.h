#pragma once
#include "form/message_loop.h"

#include <QElapsedTimer>
#include <QObject>

namespace qt {

/// The toolkit's event loop and the system's clock.
class QtMessageLoop final : public form::MessageLoop {
  public:
    QtMessageLoop();
    base::Moment now() const override;
    float clock() const override;
    [[nodiscard]] form::Connection after(int milliseconds, std::function<void()> call) override;
    void doEvents() override;
    void wait(double milliseconds, const bool& abort) override;
    void runUntil(const std::function<bool()>& done) override;
    void post(std::function<void()> call) override;

  private:
    static base::Moment systemTime();

    QObject context_;
    const float start_;  ///< seconds since midnight
    QElapsedTimer running_;
};

}  // namespace qt
