#pragma once
#include "staff/flaeche.h"

#include <vector>

namespace staff {

/// Points along a curve, close enough together to be joined by straight lines.
std::vector<Kurvenpunkt> kurvenpunkte(Kurve kurve);

}  // namespace staff
