#pragma once
#include <cstdio>
#include <cstdlib>

namespace soak {

/// Ends the fuzzer, which then keeps the input, when something does not hold.
inline void law(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

}  // namespace soak
