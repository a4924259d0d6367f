#include "sim/alarm.h"

#include <algorithm>

namespace sim {

Alarm::Clock::Clock(form::Forms& forms) : Form(forms, "alarm") {
    timer.onTick = {"alarm", [this] {
                        timer.stop();
                        const auto call = std::move(call_);
                        call();
                    }};
}

void Alarm::Clock::in(int milliseconds, std::function<void()> call) {
    call_ = std::move(call);
    timer.stop();
    timer.setInterval(std::max(1, milliseconds));
    timer.start();
}

}  // namespace sim
