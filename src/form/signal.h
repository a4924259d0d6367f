#pragma once
#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace form {

/// Keeps a listener connected for as long as it lives.
class [[nodiscard]] Connection {
  public:
    Connection() = default;
    explicit Connection(std::shared_ptr<void> listener) : listener_(std::move(listener)) {}

  private:
    std::shared_ptr<void> listener_;
};

/// Tells every listener, in the order of connecting. A listener may go or come while it is being
/// told; one that comes is told the next time.
template <class... Args>
class Signal {
  public:
    Connection connect(std::function<void(Args...)> listener) {
        forgetTheGone();
        auto held = std::make_shared<Listener>(std::move(listener));
        listeners_.push_back(held);
        return Connection(held);
    }

    void operator()(Args... args) {
        if (listeners_.empty()) return;
        const Telling telling(*this);
        for (std::size_t i = 0, count = listeners_.size(); i < count; ++i)
            if (const auto listener = listeners_[i].lock()) (*listener)(args...);
    }

  private:
    using Listener = std::function<void(Args...)>;

    void forgetTheGone() {
        if (telling_ == 0)
            std::erase_if(listeners_, [](const auto& weak) { return weak.expired(); });
    }

    /// While listeners are told, also one inside the other, none changes its place.
    class Telling {
      public:
        explicit Telling(Signal& signal) : signal_(signal) { ++signal_.telling_; }
        ~Telling() {
            --signal_.telling_;
            signal_.forgetTheGone();
        }
        Telling(const Telling&) = delete;
        Telling& operator=(const Telling&) = delete;

      private:
        Signal& signal_;
    };

    std::vector<std::weak_ptr<Listener>> listeners_;
    int telling_ = 0;
};

}  // namespace form
