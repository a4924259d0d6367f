#pragma once
#include "base/moment.h"
#include "form/signal.h"

#include <functional>

namespace form {

/// Time and the flow of events. It exists so that a ten-minute exam can run in milliseconds: one
/// implementation is the toolkit's event loop, another a clock that is advanced by hand.
class MessageLoop {
  public:
    virtual ~MessageLoop() = default;

    /// The local date and time.
    virtual base::Moment now() const = 0;
    /// Seconds since the local midnight before the program's start, as a 32-bit float. It only goes
    /// forward, whatever becomes of the day or of the system's clock.
    virtual float clock() const = 0;

    /// Has the call made once, in so many milliseconds, at least 1; not made when the connection is
    /// gone by then.
    [[nodiscard]] virtual Connection after(int milliseconds, std::function<void()> call) = 0;

    /// Lets everything that is due happen, and returns.
    virtual void doEvents() = 0;
    /// Lets events happen for `milliseconds`, or until `abort` is true.
    virtual void wait(double milliseconds, const bool& abort) = 0;
    /// Lets events happen until `done` answers true; it is asked after every event.
    virtual void runUntil(const std::function<bool()>& done) = 0;
    /// Has the call made by the loop, soon. May be called from any thread.
    virtual void post(std::function<void()> call) = 0;
};

}  // namespace form
