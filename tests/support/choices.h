#pragma once
#include "core/katalog.h"

#include <map>
#include <vector>

namespace support {

/// All scales of a category, in both directions.
inline void category(core::Zustand& z, int skal_typ) {
    z.skal_typ = skal_typ;
    z.skal_anz = core::katalog::kategorie(skal_typ).skal_max;
}

/// Scales after choice.
inline void choose(core::Zustand& z, const std::vector<int>& codes) {
    z.ska_ausw = 1;
    z.einzelAnz = codes.size() - 1;
    for (int i = 0; const int code : codes) z.einzel_wahl[i++] = code;
}

/// Weights of a training by code.
inline std::map<int, int> weights(const core::Zustand& z) {
    std::map<int, int> all;
    for (int i = 1; i < z.mathaeufgk_box.rows(); ++i)
        all[z.mathaeufgk_box(i, core::gewicht::spalteCode)] =
            z.mathaeufgk_box(i, core::gewicht::spalteGewicht);
    return all;
}

}  // namespace support
