#pragma once
#include "form/message_loop.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <vector>

namespace form {

/// A message loop whose clock stands still but for waits: waiting advances it from one due call to
/// the next and makes them in order, so the same run twice happens the same way twice.
class VirtualTime final : public MessageLoop {
  public:
    /// @param start the moment at which the clock begins.
    explicit VirtualTime(base::Moment start = {2026, 1, 2, 10, 0, 0, 0}) : start_(start) {}

    base::Moment now() const override;
    float clock() const override {
        return static_cast<float>(static_cast<double>(start_.sinceMidnight()) +
                                  static_cast<double>(elapsed_) / 1000);
    }
    [[nodiscard]] Connection after(int milliseconds, std::function<void()> call) override;
    void doEvents() override { advance(0); }
    void wait(double milliseconds, const bool& abort) override;
    /// @throws std::logic_error when nothing is left that could happen.
    void runUntil(const std::function<bool()>& done) override;
    void post(std::function<void()> call) override { posted_.push_back(std::move(call)); }

    /// Lets `milliseconds` pass and everything due in them happen.
    void advance(std::int64_t milliseconds);
    /// Milliseconds since the start.
    std::int64_t elapsed() const { return elapsed_; }

  private:
    using Call = std::shared_ptr<std::function<void()>>;
    struct Awaited {
        Call call;  ///< held by its connection too, until that has gone
        std::int64_t due;
    };
    /// The call due first, of those due together the one asked for first; `end` without any.
    std::vector<Awaited>::iterator first();
    /// Lets the next thing due up to `limit` happen. @return false when there is none.
    bool step(std::int64_t limit);

    base::Moment start_;
    std::int64_t elapsed_ = 0;
    std::vector<Awaited> awaited_;  ///< in the order of asking
    std::vector<Call> spare_;       ///< made or forgotten, to be used again
    std::deque<std::function<void()>> posted_;
};

}  // namespace form
