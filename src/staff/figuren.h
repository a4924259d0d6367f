#pragma once
#include "staff/flaeche.h"

#include <array>

/// The shapes of notation, stroke by stroke.
namespace staff::figuren {

/// Row by row; the first is the one that a head in a space of the staff leaves out.
inline constexpr std::array kopf{
    Strich{0, -4, 4, -4}, Strich{-2, -3, 5, -3}, Strich{-3, -2, 5, -2}, Strich{-4, -1, 5, -1},
    Strich{-4, 0, 5, 0},  Strich{-4, 1, 4, 1},   Strich{-4, 2, 3, 2},   Strich{-3, 3, 1, 3}};

inline constexpr std::array be{Strich{0, 1, 0, 22},  Strich{2, 12, 5, 12}, Strich{1, 13, 6, 13},
                               Strich{4, 14, 7, 14}, Strich{4, 15, 7, 15}, Strich{4, 16, 6, 16},
                               Strich{4, 17, 6, 17}, Strich{3, 18, 5, 18}, Strich{2, 19, 3, 20},
                               Strich{1, 20, 2, 21}};

inline constexpr std::array kreuz{
    Strich{0, 1, 0, 23},    Strich{3, 0, 3, 22},  // stems
    Strich{-1, 8, -1, 11},  Strich{1, 7, 1, 10},  Strich{2, 7, 2, 10},  Strich{4, 6, 4, 9},  // bars
    Strich{-1, 16, -1, 19}, Strich{1, 15, 1, 18}, Strich{2, 15, 2, 18}, Strich{4, 14, 4, 17}};

inline constexpr std::array doppelkreuz{
    Strich{0, 0, 3, 0}, Strich{0, 1, 3, 1}, Strich{0, 2, 3, 2},  // four blocks
    Strich{0, 5, 3, 5}, Strich{0, 6, 3, 6}, Strich{0, 7, 3, 7}, Strich{5, 0, 8, 0},
    Strich{5, 1, 8, 1}, Strich{5, 2, 8, 2}, Strich{5, 5, 8, 5}, Strich{5, 6, 8, 6},
    Strich{5, 7, 8, 7}, Strich{3, 3, 5, 3}, Strich{3, 4, 5, 4}};  // the middle

inline constexpr std::array aufloesung{
    Strich{0, 1, 0, 18},  Strich{4, 6, 4, 23},                         // stems
    Strich{1, 10, 2, 10}, Strich{1, 9, 3, 9},   Strich{1, 8, 4, 8},    // upper block
    Strich{2, 7, 4, 7},   Strich{3, 6, 4, 6},                          //
    Strich{1, 17, 2, 17}, Strich{1, 16, 3, 16}, Strich{1, 15, 4, 15},  // lower block
    Strich{2, 14, 4, 14}, Strich{3, 13, 4, 13}};

inline constexpr std::array oktavMarke{
    // 8
    Strich{1, 0, 6, 0}, Strich{0, 1, 0, 4}, Strich{1, 1, 1, 4}, Strich{5, 1, 5, 4},
    Strich{6, 1, 6, 4}, Strich{1, 4, 6, 4}, Strich{0, 5, 0, 8}, Strich{1, 5, 1, 8},
    Strich{5, 5, 5, 8}, Strich{6, 5, 6, 8}, Strich{1, 8, 6, 8},
    // v
    Strich{9, 3, 9, 5}, Strich{10, 4, 10, 7}, Strich{11, 6, 11, 8}, Strich{12, 7, 12, 9},
    Strich{13, 6, 13, 8}, Strich{14, 4, 14, 7}, Strich{15, 3, 15, 5},
    // a
    Strich{19, 3, 23, 3}, Strich{18, 4, 18, 8}, Strich{19, 4, 19, 8}, Strich{19, 8, 22, 8},
    Strich{22, 3, 22, 9}, Strich{23, 4, 23, 9}, Strich{24, 8, 25, 8}};

/// Dots of the bass clef, each a block of 5 by 4.
inline constexpr std::array punkte{
    Strich{26, 51, 31, 51}, Strich{26, 52, 31, 52}, Strich{26, 53, 31, 53}, Strich{26, 54, 31, 54},
    Strich{26, 58, 31, 58}, Strich{26, 59, 31, 59}, Strich{26, 60, 31, 60}, Strich{26, 61, 31, 61}};

}  // namespace staff::figuren
