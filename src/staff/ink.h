#pragma once
#include "base/colour.h"

namespace staff {

/// Numbers of the colours that notation is drawn in.
namespace ink {
inline constexpr int black = 0;
inline constexpr int green = 2;
inline constexpr int grey = 8;
inline constexpr int red = 12;
inline constexpr int white = 15;
}  // namespace ink

/// The colour of a line. @param number one of `ink`; any other is black.
constexpr base::Colour lineColour(int number) {
    switch (number) {
        case ink::green:
            return base::rgb(0, 128, 0);
        case ink::grey:
            return base::rgb(128, 128, 128);
        case ink::red:
            return base::colours::red;
        case ink::white:
            return base::colours::white;
        default:
            return base::colours::black;
    }
}

/// The colour of a note head, which has a table of its own: green, dark red (4), red, olive for the
/// other even numbers from 6 to 14; anything else is black.
constexpr base::Colour headColour(int number) {
    switch (number) {
        case ink::green:
            return base::rgb(0, 128, 0);
        case 4:
            return base::rgb(192, 0, 0);
        case 6:
        case ink::grey:
        case 10:
        case 14:
            return base::rgb(192, 192, 0);
        case ink::red:
            return base::colours::red;
        default:
            return base::colours::black;
    }
}

}  // namespace staff
