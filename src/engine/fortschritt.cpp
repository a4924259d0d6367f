#include "engine/fortschritt.h"

#include "base/rounding.h"
#include "engine/aufgabenwahl.h"

#include <algorithm>
#include <cstdlib>

namespace engine {

float ZeitStrafeBerechnen(float AntwDau, i16 zeit_faktor) {
    const auto grenze = static_cast<float>(zeit_faktor);
    if (AntwDau <= grenze) return 0;
    const int ueber = base::floorInt(static_cast<double>(AntwDau - grenze)) / 2;
    return static_cast<float>(ueber) / 10.0F + 1.0F;
}

i16 erlaubteFehler(const core::Zustand& z) {
    constexpr int hoechstens = 4;
    if (z.ska_ausw == 0) return hoechstens;
    if (z.richtung < 2) return std::min(hoechstens, verschiedeneSkalen(z) - 1);
    int auf = 0, ab = 0;
    for (int i = 0; i <= z.einzelAnz; ++i) ++(z.einzel_wahl[i] > 0 ? auf : ab);
    return auf > 4 && ab > 4 ? hoechstens : auf - 1;
}

i16 verwechselt(const core::Zustand& z, int skala_nr, i16 gefragt) {
    const int groesse = skala_nr + 1;
    if (z.ska_ausw == 0) return groesse * base::sgn(gefragt);
    i16 code = 0;
    for (int k = 0; k <= z.einzelAnz; ++k) {
        if (std::abs(z.einzel_wahl[k]) != groesse) continue;
        const int richtung = base::sgn(z.einzel_wahl[k]);
        code = groesse * richtung;
        // A direction is compared with a whole code: it holds for the first scale only, and the
        // last entry decides for all others.
        if (richtung == gefragt) break;
    }
    return code;
}

}  // namespace engine
