#pragma once
#include "notation/flaeche.h"

#include <vector>

namespace notation {

/// Points along a curve, close enough together to be joined by straight lines.
std::vector<Kurvenpunkt> kurvenpunkte(Kurve kurve);

}  // namespace notation
