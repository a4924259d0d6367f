#pragma once
#include "staff/surface.h"

#include <array>

/// The shapes of notation, stroke by stroke.
namespace staff::shapes {

/// Row by row; the first is the one that a head in a space of the staff leaves out.
inline constexpr std::array head{
    Stroke{0, -4, 4, -4}, Stroke{-2, -3, 5, -3}, Stroke{-3, -2, 5, -2}, Stroke{-4, -1, 5, -1},
    Stroke{-4, 0, 5, 0},  Stroke{-4, 1, 4, 1},   Stroke{-4, 2, 3, 2},   Stroke{-3, 3, 1, 3}};

inline constexpr std::array flat{Stroke{0, 1, 0, 22},  Stroke{2, 12, 5, 12}, Stroke{1, 13, 6, 13},
                                 Stroke{4, 14, 7, 14}, Stroke{4, 15, 7, 15}, Stroke{4, 16, 6, 16},
                                 Stroke{4, 17, 6, 17}, Stroke{3, 18, 5, 18}, Stroke{2, 19, 3, 20},
                                 Stroke{1, 20, 2, 21}};

inline constexpr std::array sharp{
    Stroke{0, 1, 0, 23},    Stroke{3, 0, 3, 22},  // stems
    Stroke{-1, 8, -1, 11},  Stroke{1, 7, 1, 10},  Stroke{2, 7, 2, 10},  Stroke{4, 6, 4, 9},  // bars
    Stroke{-1, 16, -1, 19}, Stroke{1, 15, 1, 18}, Stroke{2, 15, 2, 18}, Stroke{4, 14, 4, 17}};

inline constexpr std::array doubleSharp{
    Stroke{0, 0, 3, 0}, Stroke{0, 1, 3, 1}, Stroke{0, 2, 3, 2},  // four blocks
    Stroke{0, 5, 3, 5}, Stroke{0, 6, 3, 6}, Stroke{0, 7, 3, 7}, Stroke{5, 0, 8, 0},
    Stroke{5, 1, 8, 1}, Stroke{5, 2, 8, 2}, Stroke{5, 5, 8, 5}, Stroke{5, 6, 8, 6},
    Stroke{5, 7, 8, 7}, Stroke{3, 3, 5, 3}, Stroke{3, 4, 5, 4}};  // the middle

inline constexpr std::array natural{
    Stroke{0, 1, 0, 18},  Stroke{4, 6, 4, 23},                         // stems
    Stroke{1, 10, 2, 10}, Stroke{1, 9, 3, 9},   Stroke{1, 8, 4, 8},    // upper block
    Stroke{2, 7, 4, 7},   Stroke{3, 6, 4, 6},                          //
    Stroke{1, 17, 2, 17}, Stroke{1, 16, 3, 16}, Stroke{1, 15, 4, 15},  // lower block
    Stroke{2, 14, 4, 14}, Stroke{3, 13, 4, 13}};

inline constexpr std::array octaveMark{
    // 8
    Stroke{1, 0, 6, 0}, Stroke{0, 1, 0, 4}, Stroke{1, 1, 1, 4}, Stroke{5, 1, 5, 4},
    Stroke{6, 1, 6, 4}, Stroke{1, 4, 6, 4}, Stroke{0, 5, 0, 8}, Stroke{1, 5, 1, 8},
    Stroke{5, 5, 5, 8}, Stroke{6, 5, 6, 8}, Stroke{1, 8, 6, 8},
    // v
    Stroke{9, 3, 9, 5}, Stroke{10, 4, 10, 7}, Stroke{11, 6, 11, 8}, Stroke{12, 7, 12, 9},
    Stroke{13, 6, 13, 8}, Stroke{14, 4, 14, 7}, Stroke{15, 3, 15, 5},
    // a
    Stroke{19, 3, 23, 3}, Stroke{18, 4, 18, 8}, Stroke{19, 4, 19, 8}, Stroke{19, 8, 22, 8},
    Stroke{22, 3, 22, 9}, Stroke{23, 4, 23, 9}, Stroke{24, 8, 25, 8}};

/// Dots of the bass clef, each a block of 5 by 4.
inline constexpr std::array clefDots{
    Stroke{26, 51, 31, 51}, Stroke{26, 52, 31, 52}, Stroke{26, 53, 31, 53}, Stroke{26, 54, 31, 54},
    Stroke{26, 58, 31, 58}, Stroke{26, 59, 31, 59}, Stroke{26, 60, 31, 60}, Stroke{26, 61, 31, 61}};

/// Signs of a judged note, two pixels thick.
inline constexpr std::array tick{Stroke{0, 5, 3, 8}, Stroke{0, 6, 3, 9}, Stroke{3, 8, 9, -1},
                                 Stroke{4, 8, 10, -1}};
inline constexpr std::array cross{Stroke{0, 0, 9, 9}, Stroke{1, 0, 10, 9}, Stroke{8, 0, -1, 9},
                                  Stroke{9, 0, 0, 9}};

}  // namespace staff::shapes
