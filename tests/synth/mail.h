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

    /// Runs calls until `done` holds; false when it does not within ten seconds.
    template <class Done>
    bool runUntil(Done done) {
        const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        while (!done())
            if (!runOne(limit)) return false;
        return true;
    }

    /// Waits until a call is there, and leaves it.
    bool waitForCall() {
        std::unique_lock lock(mutex_);
        return arrived_.wait_for(lock, std::chrono::seconds(10),
                                 [this] { return !calls_.empty(); });
    }

    /// Runs what arrives within the time.
    void runFor(std::chrono::milliseconds time) {
        const auto limit = std::chrono::steady_clock::now() + time;
        while (runOne(limit)) {
        }
    }

  private:
    bool runOne(std::chrono::steady_clock::time_point limit) {
        std::function<void()> call;
        {
            std::unique_lock lock(mutex_);
            if (!arrived_.wait_until(lock, limit, [this] { return !calls_.empty(); })) return false;
            call = std::move(calls_.front());
            calls_.pop_front();
        }
        call();
        return true;
    }

    std::mutex mutex_;
    std::condition_variable arrived_;
    std::deque<std::function<void()>> calls_;
};

}  // namespace synth::test
