#include "staff/kurve.h"

#include <algorithm>
#include <cstddef>

namespace staff {

namespace {

constexpr int teile = 8;

/// Catmull-Rom between p1 and p2. @param t 0..1.
double zwischen(double p0, double p1, double p2, double p3, double t) {
    return 0.5 * (2 * p1 + (p2 - p0) * t + (2 * p0 - 5 * p1 + 4 * p2 - p3) * t * t +
                  (3 * p1 - p0 - 3 * p2 + p3) * t * t * t);
}

}  // namespace

std::vector<Kurvenpunkt> kurvenpunkte(Kurve kurve) {
    std::vector<Kurvenpunkt> punkte{kurve.front()};
    const auto letzter = static_cast<std::ptrdiff_t>(kurve.size()) - 1;
    const auto an = [&](std::ptrdiff_t i) -> const Kurvenpunkt& {
        return kurve[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(i, 0, letzter))];
    };
    for (std::ptrdiff_t i = 0; i < letzter; ++i) {
        const auto &a = an(i - 1), &b = an(i), &c = an(i + 1), &d = an(i + 2);
        for (int teil = 1; teil <= teile; ++teil) {
            const double t = static_cast<double>(teil) / teile;
            punkte.push_back({zwischen(a.x, b.x, c.x, d.x, t), zwischen(a.y, b.y, c.y, d.y, t),
                              zwischen(a.breite, b.breite, c.breite, d.breite, t)});
        }
    }
    return punkte;
}

}  // namespace staff
