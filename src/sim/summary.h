#pragma once
#include "sim/outcome.h"

#include <span>
#include <string>

namespace sim {

/// What a planner wants to know of some runs, as lines of text.
std::string summary(std::span<const Outcome> outcomes);

}  // namespace sim
