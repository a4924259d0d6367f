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

/// Tells every listener, in the order of connecting. A listener may go while it is being told.
template <class... Args>
class Signal {
  public:
    Connection connect(std::function<void(Args...)> listener) {
        auto held = std::make_shared<Listener>(std::move(listener));
        listeners_.push_back(held);
        return Connection(held);
    }

    void operator()(Args... args) {
        if (listeners_.empty()) return;
        for (const auto& weak : std::vector(listeners_))
            if (const auto listener = weak.lock()) (*listener)(args...);
        std::erase_if(listeners_, [](const auto& weak) { return weak.expired(); });
    }

  private:
    using Listener = std::function<void(Args...)>;
    std::vector<std::weak_ptr<Listener>> listeners_;
};

}  // namespace form
