#include "form/virtual_time.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace form {

base::Moment VirtualTime::now() const {
    constexpr std::int64_t dayLength = 24LL * 60 * 60 * 1000;
    const std::int64_t total = ((start_.hour * 60LL + start_.minute) * 60 + start_.second) * 1000 +
                               start_.millisecond + elapsed_;
    const auto inDay = static_cast<int>(total % dayLength);
    base::Moment moment = start_;
    using namespace std::chrono;
    const year_month_day date{sys_days(year(start_.year) / start_.month / start_.day) +
                              days(total / dayLength)};
    moment.year = int(date.year());
    moment.month = static_cast<int>(unsigned(date.month()));
    moment.day = static_cast<int>(unsigned(date.day()));
    moment.hour = inDay / 3600000;
    moment.minute = inDay / 60000 % 60;
    moment.second = inDay / 1000 % 60;
    moment.millisecond = inDay % 1000;
    return moment;
}

Connection VirtualTime::after(int milliseconds, std::function<void()> call) {
    if (spare_.empty()) spare_.push_back(std::make_shared<std::function<void()>>());
    Call held = std::move(spare_.back());
    spare_.pop_back();
    *held = std::move(call);
    awaited_.push_back({held, elapsed_ + std::max(1, milliseconds)});
    return Connection(std::move(held));
}

std::vector<VirtualTime::Awaited>::iterator VirtualTime::first() {
    std::size_t found = 0;
    for (std::size_t i = 0; i < awaited_.size();) {
        if (awaited_[i].call.use_count() == 1) {  // its connection has gone
            spare_.push_back(std::move(awaited_[i].call));
            awaited_.erase(awaited_.begin() + static_cast<std::ptrdiff_t>(i));
            continue;
        }
        if (awaited_[i].due < awaited_[found].due) found = i;
        ++i;
    }
    return awaited_.begin() + static_cast<std::ptrdiff_t>(found);
}

bool VirtualTime::step(std::int64_t limit) {
    if (!posted_.empty()) {
        const auto call = std::move(posted_.front());
        posted_.pop_front();
        call();
        return true;
    }
    const auto next = first();
    if (next == awaited_.end() || next->due > limit) return false;
    elapsed_ = std::max(elapsed_, next->due);
    const Call call = std::move(next->call);
    awaited_.erase(next);
    (*call)();
    if (call.use_count() == 1) spare_.push_back(call);
    return true;
}

void VirtualTime::advance(std::int64_t milliseconds) {
    const std::int64_t end = elapsed_ + milliseconds;
    while (step(end)) {
    }
    elapsed_ = std::max(elapsed_, end);
}

void VirtualTime::wait(double milliseconds, const bool& abort) {
    const std::int64_t end = elapsed_ + static_cast<std::int64_t>(std::ceil(milliseconds));
    while (!abort && step(end)) {
    }
    if (!abort) elapsed_ = std::max(elapsed_, end);
}

void VirtualTime::runUntil(const std::function<bool()>& done) {
    while (!done())
        if (!step(std::numeric_limits<std::int64_t>::max()))
            throw std::logic_error("nothing is left that could happen");
}

}  // namespace form
