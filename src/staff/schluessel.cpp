// The clefs.
#include "staff/farbe.h"
#include "staff/figuren.h"
#include "staff/noten.h"

#include <array>

namespace staff {

namespace {

constexpr Colour schwarz = linienFarbe(farbe::schwarz);

/// From the curl round the G line outward, up to the loop at the top, and down the stem to the
/// foot.
constexpr std::array violin{
    Kurvenpunkt{20.5, 91.5, 1.0},  Kurvenpunkt{17.8, 88.5, 1.2},  Kurvenpunkt{19.5, 84.6, 1.6},
    Kurvenpunkt{23.5, 83.6, 2.2},  Kurvenpunkt{27.6, 87.0, 2.4},  Kurvenpunkt{27.2, 92.6, 2.0},
    Kurvenpunkt{22.0, 96.3, 1.4},  Kurvenpunkt{16.6, 94.2, 1.8},  Kurvenpunkt{14.2, 88.0, 2.6},
    Kurvenpunkt{15.4, 81.0, 2.8},  Kurvenpunkt{19.4, 74.4, 2.4},  Kurvenpunkt{24.0, 68.0, 2.0},
    Kurvenpunkt{25.8, 60.5, 1.6},  Kurvenpunkt{24.6, 53.8, 1.4},  Kurvenpunkt{22.6, 51.6, 1.2},
    Kurvenpunkt{20.2, 55.5, 1.4},  Kurvenpunkt{19.4, 62.5, 1.6},  Kurvenpunkt{20.6, 74.0, 1.6},
    Kurvenpunkt{22.4, 90.0, 1.6},  Kurvenpunkt{23.6, 102.0, 1.6}, Kurvenpunkt{22.8, 107.0, 1.6},
    Kurvenpunkt{19.6, 109.2, 1.4}, Kurvenpunkt{16.8, 108.2, 1.2}};

/// From the head over the top and down the tail.
constexpr std::array bass{Kurvenpunkt{8.8, 52.5, 1.6},  Kurvenpunkt{10.6, 49.9, 1.6},
                          Kurvenpunkt{14.4, 48.8, 2.0}, Kurvenpunkt{18.8, 50.2, 2.8},
                          Kurvenpunkt{21.2, 54.6, 3.2}, Kurvenpunkt{20.4, 60.2, 2.8},
                          Kurvenpunkt{17.0, 65.6, 2.0}, Kurvenpunkt{9.6, 70.8, 0.8}};

}  // namespace

void ViolinschluesselMalen(Flaeche& flaeche) {
    flaeche.kurve(violin, 0, 0, schwarz);
    flaeche.scheibe(17, 105, 4, schwarz);
}

void BassschluesselMalen(Flaeche& flaeche) {
    flaeche.scheibe(11, 53, 3.4, schwarz);
    flaeche.kurve(bass, 0, 0, schwarz);
    flaeche.figur(figuren::punkte, 0, 0, schwarz);
}

}  // namespace staff
