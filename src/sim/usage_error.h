#pragma once
#include "base/usage_error.h"

namespace sim {

using base::UsageError;

}  // namespace sim
