#pragma once
#include <functional>

namespace synth {

/// Hands a call over to the drill's thread. May be called from any thread and returns at once.
using Post = std::function<void(std::function<void()>)>;

}  // namespace synth
