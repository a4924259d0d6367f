#include "synth/mailbox.h"

#include <utility>

namespace synth {

void Mailbox::put(Command command) {
    {
        const std::lock_guard lock(mutex_);
        commands_.push_back(std::move(command));
    }
    changed_.notify_all();
}

std::optional<Command> Mailbox::take() {
    const std::lock_guard lock(mutex_);
    if (commands_.empty()) return std::nullopt;
    std::optional<Command> first(std::move(commands_.front()));
    commands_.pop_front();
    return first;
}

bool Mailbox::empty() const {
    const std::lock_guard lock(mutex_);
    return commands_.empty();
}

void Mailbox::quit() {
    {
        const std::lock_guard lock(mutex_);
        quitting_ = true;
    }
    changed_.notify_all();
}

bool Mailbox::quitting() const {
    const std::lock_guard lock(mutex_);
    return quitting_;
}

void Mailbox::wait(std::optional<TimePoint> until) {
    std::unique_lock lock(mutex_);
    const auto ready = [this] { return quitting_ || !commands_.empty(); };
    if (until)
        changed_.wait_until(lock, *until, ready);
    else
        changed_.wait(lock, ready);
}

void Mailbox::pause(TimePoint until) {
    std::unique_lock lock(mutex_);
    changed_.wait_until(lock, until, [this] { return quitting_; });
}

}  // namespace synth
