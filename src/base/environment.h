#pragma once
#include <cstdlib>
#include <string>

namespace base {

/// Value of an environment variable, "" where it is not set.
inline std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

}  // namespace base
