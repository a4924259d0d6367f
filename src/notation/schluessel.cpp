// The clefs: curves through a few points, drawn as short strokes of changing width.
#include "notation/noten.h"

#include <array>
#include <cstddef>

namespace notation {

namespace {

struct Punkt {
    double x, y, breite;
};

/// A smooth curve through all points (Catmull-Rom), its width running along.
template <std::size_t n>
void kurveMalen(Flaeche& flaeche, const std::array<Punkt, n>& punkte) {
    constexpr int teile = 8;
    const auto an = [&](std::ptrdiff_t i) -> const Punkt& {
        return punkte[static_cast<std::size_t>(i < 0                    ? 0
                                               : i >= std::ptrdiff_t{n} ? std::ptrdiff_t{n} - 1
                                                                        : i)];
    };
    const auto mischen = [](double p0, double p1, double p2, double p3, double t) {
        return 0.5 * (2 * p1 + (p2 - p0) * t + (2 * p0 - 5 * p1 + 4 * p2 - p3) * t * t +
                      (3 * p1 - p0 - 3 * p2 + p3) * t * t * t);
    };
    Punkt vorher = punkte[0];
    for (std::ptrdiff_t i = 0; i + 1 < std::ptrdiff_t{n}; ++i)
        for (int teil = 1; teil <= teile; ++teil) {
            const double t = static_cast<double>(teil) / teile;
            const Punkt jetzt{mischen(an(i - 1).x, an(i).x, an(i + 1).x, an(i + 2).x, t),
                              mischen(an(i - 1).y, an(i).y, an(i + 1).y, an(i + 2).y, t),
                              an(i).breite + (an(i + 1).breite - an(i).breite) * t};
            flaeche.linie(vorher.x, vorher.y, jetzt.x, jetzt.y, base::colours::black, jetzt.breite);
            vorher = jetzt;
        }
}

/// From the curl round the G line outward, up to the loop at the top, and down the stem to the
/// foot.
constexpr std::array violinschluessel{
    Punkt{20.5, 91.5, 1.0},  Punkt{17.8, 88.5, 1.2},  Punkt{19.5, 84.6, 1.6},
    Punkt{23.5, 83.6, 2.2},  Punkt{27.6, 87.0, 2.4},  Punkt{27.2, 92.6, 2.0},
    Punkt{22.0, 96.3, 1.4},  Punkt{15.6, 94.2, 1.8},  Punkt{12.6, 88.0, 2.6},
    Punkt{14.4, 81.0, 2.8},  Punkt{19.4, 74.4, 2.4},  Punkt{24.0, 68.0, 2.0},
    Punkt{25.8, 60.5, 1.6},  Punkt{24.6, 53.8, 1.4},  Punkt{22.6, 51.6, 1.2},
    Punkt{20.2, 55.5, 1.4},  Punkt{19.4, 62.5, 1.6},  Punkt{20.6, 74.0, 1.6},
    Punkt{22.6, 90.0, 1.6},  Punkt{24.2, 103.0, 1.6}, Punkt{23.2, 108.2, 1.6},
    Punkt{19.6, 109.6, 1.6}, Punkt{16.8, 107.4, 1.4}};

}  // namespace

void ViolinschluesselMalen(Flaeche& flaeche) {
    kurveMalen(flaeche, violinschluessel);
    flaeche.scheibe(18.2, 105.2, 2.6, base::colours::black);
}

}  // namespace notation
