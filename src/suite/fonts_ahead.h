#pragma once
#include <thread>

namespace suite {

/// Reads the system's configuration of fonts on a thread of its own, beside the rest of a start;
/// the first text waits for what is left of that. To be called before there is a QApplication.
/// @return the thread; whoever holds it waits for its end.
[[nodiscard]] std::jthread readFontsAhead();

}  // namespace suite
