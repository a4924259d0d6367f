#include "staff/curve.h"

#include <algorithm>
#include <cstddef>

namespace staff {

namespace {

constexpr int parts = 8;

/// Catmull-Rom between p1 and p2. @param t 0..1.
double between(double p0, double p1, double p2, double p3, double t) {
    return 0.5 * (2 * p1 + (p2 - p0) * t + (2 * p0 - 5 * p1 + 4 * p2 - p3) * t * t +
                  (3 * p1 - p0 - 3 * p2 + p3) * t * t * t);
}

}  // namespace

std::vector<CurvePoint> curvePoints(Curve curve) {
    std::vector<CurvePoint> punkte{curve.front()};
    const auto last = static_cast<std::ptrdiff_t>(curve.size()) - 1;
    const auto at = [&](std::ptrdiff_t i) -> const CurvePoint& {
        return curve[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(i, 0, last))];
    };
    for (std::ptrdiff_t i = 0; i < last; ++i) {
        const auto &a = at(i - 1), &b = at(i), &c = at(i + 1), &d = at(i + 2);
        for (int part = 1; part <= parts; ++part) {
            const double t = static_cast<double>(part) / parts;
            punkte.push_back({between(a.x, b.x, c.x, d.x, t), between(a.y, b.y, c.y, d.y, t),
                              between(a.width, b.width, c.width, d.width, t)});
        }
    }
    return punkte;
}

}  // namespace staff
