// The clefs.
#include "notation/kurve.h"
#include "notation/noten.h"

namespace notation {

namespace {

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
    kurveMalen(flaeche, 0, 0, violinschluessel);
    flaeche.scheibe(18.2, 105.2, 2.6, base::colours::black);
}

}  // namespace notation
