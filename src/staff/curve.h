#pragma once
#include "staff/surface.h"

#include <vector>

namespace staff {

/// Points along a curve, close enough together to be joined by straight lines.
std::vector<CurvePoint> curvePoints(Curve curve);

}  // namespace staff
