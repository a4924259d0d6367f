#include "synth/device_guard.h"

#include <chrono>
#include <future>
#include <mutex>
#include <thread>
#include <utility>

namespace synth {

using namespace std::chrono_literals;

namespace {

constexpr auto openingLimit = 2000ms;
constexpr auto closingLimit = 500ms;

/// Runs `work` on a thread of its own; false when it is not done in time and goes on alone.
bool finishesWithin(std::chrono::milliseconds limit, std::function<void()> work) {
    std::promise<void> done;
    const auto end = done.get_future();
    std::thread thread([work = std::move(work), done = std::move(done)]() mutable {
        work();
        work = nullptr;
        done.set_value();
    });
    if (end.wait_for(limit) == std::future_status::ready) {
        thread.join();
        return true;
    }
    thread.detach();
    return false;
}

/// A device together with the way to what it pulls from, which can be shut at any time.
struct Attempt {
    explicit Attempt(Pull source) : pull(std::move(source)) {}

    void call(float* left, float* right, int frames) {
        const std::lock_guard lock(mutex);
        if (pull) pull(left, right, frames);
    }
    /// Once it returns no call is under way and none will come.
    void shut() {
        const std::lock_guard lock(mutex);
        pull = nullptr;
    }

    std::mutex mutex;
    Pull pull;
    std::unique_ptr<AudioDevice> device;
};

class GuardedDevice : public AudioDevice {
  public:
    explicit GuardedDevice(std::shared_ptr<Attempt> attempt) : attempt_(std::move(attempt)) {}
    ~GuardedDevice() override {
        attempt_->shut();
        finishesWithin(closingLimit,
                       [attempt = std::exchange(attempt_, nullptr)] { attempt->device.reset(); });
    }

  private:
    std::shared_ptr<Attempt> attempt_;
};

}  // namespace

std::unique_ptr<AudioDevice> DeviceGuard::open(const OpenDevice& open, Pull pull) {
    if (!last_.expired()) return nullptr;
    auto attempt = std::make_shared<Attempt>(std::move(pull));
    last_ = attempt;
    const bool opened = finishesWithin(openingLimit, [attempt, open] {
        attempt->device = open([raw = attempt.get()](float* left, float* right, int frames) {
            raw->call(left, right, frames);
        });
    });
    if (!opened) {
        attempt->shut();
        return nullptr;
    }
    if (!attempt->device) return nullptr;
    return std::make_unique<GuardedDevice>(std::move(attempt));
}

}  // namespace synth
