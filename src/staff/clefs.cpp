// The clefs.
#include "staff/glyphs.h"
#include "staff/ink.h"
#include "staff/shapes.h"

#include <array>

namespace staff {

namespace {

constexpr Colour black = lineColour(ink::black);

/// From the curl round the G line outward, up to the loop at the top, and down the stem to the
/// foot.
constexpr std::array treble{
    CurvePoint{20.5, 91.5, 1.0},  CurvePoint{17.8, 88.5, 1.2},  CurvePoint{19.5, 84.6, 1.6},
    CurvePoint{23.5, 83.6, 2.2},  CurvePoint{27.6, 87.0, 2.4},  CurvePoint{27.2, 92.6, 2.0},
    CurvePoint{22.0, 96.3, 1.4},  CurvePoint{16.6, 94.2, 1.8},  CurvePoint{14.2, 88.0, 2.6},
    CurvePoint{15.4, 81.0, 2.8},  CurvePoint{19.4, 74.4, 2.4},  CurvePoint{24.0, 68.0, 2.0},
    CurvePoint{25.8, 60.5, 1.6},  CurvePoint{24.6, 53.8, 1.4},  CurvePoint{22.6, 51.6, 1.2},
    CurvePoint{20.2, 55.5, 1.4},  CurvePoint{19.4, 62.5, 1.6},  CurvePoint{20.6, 74.0, 1.6},
    CurvePoint{22.4, 90.0, 1.6},  CurvePoint{23.6, 102.0, 1.6}, CurvePoint{22.8, 107.0, 1.6},
    CurvePoint{19.6, 109.2, 1.4}, CurvePoint{16.8, 108.2, 1.2}};

/// From the head over the top and down the tail.
constexpr std::array bass{CurvePoint{8.8, 52.5, 1.6},  CurvePoint{10.6, 49.9, 1.6},
                          CurvePoint{14.4, 48.8, 2.0}, CurvePoint{18.8, 50.2, 2.8},
                          CurvePoint{21.2, 54.6, 3.2}, CurvePoint{20.4, 60.2, 2.8},
                          CurvePoint{17.0, 65.6, 2.0}, CurvePoint{9.6, 70.8, 0.8}};

}  // namespace

void ViolinschluesselMalen(Surface& surface) {
    surface.curve(treble, 0, 0, black);
    surface.disc(17, 105, 4, black);
}

void BassschluesselMalen(Surface& surface) {
    surface.disc(11, 53, 3.4, black);
    surface.curve(bass, 0, 0, black);
    surface.shape(shapes::clefDots, 0, 0, black);
}

}  // namespace staff
