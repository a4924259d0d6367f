#pragma once
#include "base/colour.h"

namespace staff {

/// Numbers of the colours that notation is drawn in.
namespace farbe {
inline constexpr int schwarz = 0;
inline constexpr int gruen = 2;
inline constexpr int grau = 8;
inline constexpr int rot = 12;
inline constexpr int weiss = 15;
}  // namespace farbe

/// The colour of a line. @param nummer one of `farbe`; any other is black.
constexpr base::Colour linienFarbe(int nummer) {
    switch (nummer) {
        case farbe::gruen:
            return base::rgb(0, 128, 0);
        case farbe::grau:
            return base::rgb(128, 128, 128);
        case farbe::rot:
            return base::colours::red;
        case farbe::weiss:
            return base::colours::white;
        default:
            return base::colours::black;
    }
}

/// The colour of a note head, which has a table of its own: green, dark red (4), red, olive for the
/// other even numbers from 6 to 14; anything else is black.
constexpr base::Colour kopfFarbe(int nummer) {
    switch (nummer) {
        case farbe::gruen:
            return base::rgb(0, 128, 0);
        case 4:
            return base::rgb(192, 0, 0);
        case 6:
        case farbe::grau:
        case 10:
        case 14:
            return base::rgb(192, 192, 0);
        case farbe::rot:
            return base::colours::red;
        default:
            return base::colours::black;
    }
}

}  // namespace staff
