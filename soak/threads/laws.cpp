#include "threads/laws.h"

#include <iostream>

namespace soak {

void Laws::broken(Law law, const std::string& who, const std::string& what) {
    constexpr std::int64_t shown = 20;
    if (++faults_.at(static_cast<std::size_t>(law)) <= shown)
        std::cerr << "FAILED " + who + ": " + what + "\n";
}

}  // namespace soak
