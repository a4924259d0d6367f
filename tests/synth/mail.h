#pragma once
#include "synth/post.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>

namespace synth::test {

/// Stands for the drill's message loop: keeps posted calls until the test's thread runs them.
class Mail {
  public:
    Post post() {
        return [this](std::function<void()> call) {
            const std::lock_guard lock(mutex_);
            calls_.push_back(std::move(call));
            arrived_.notify_all();
        };
    }

    /// Runs calls until `done` holds; false when it does not within the time.
    template <class Done>
    bool runUntil(Done done, std::chrono::milliseconds time = std::chrono::seconds(10)) {
        const auto limit = std::chrono::steady_clock::now() + time;
        while (!done()) {
            std::unique_lock lock(mutex_);
            if (!arrived_.wait_until(lock, limit, [this] { return !calls_.empty(); })) return false;
            const auto call = std::move(calls_.front());
            calls_.pop_front();
            lock.unlock();
            call();
        }
        return true;
    }

    /// Runs what arrives within the time.
    void runFor(std::chrono::milliseconds time) {
        runUntil([] { return false; }, time);
    }

    /// Waits until a call is there, and leaves it.
    bool waitForCall() {
        std::unique_lock lock(mutex_);
        return arrived_.wait_for(lock, std::chrono::seconds(10),
                                 [this] { return !calls_.empty(); });
    }

  private:
    std::mutex mutex_;
    std::condition_variable arrived_;
    std::deque<std::function<void()>> calls_;
};

}  // namespace synth::test
