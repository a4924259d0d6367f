#include "engine/scoring.h"

#include "base/rounding.h"
#include "engine/task_choice.h"

#include <algorithm>
#include <cstdlib>

namespace engine {

float ZeitStrafeBerechnen(float AntwDau, i16 zeit_faktor) {
    const auto grenze = static_cast<float>(zeit_faktor);
    if (AntwDau <= grenze) return 0;
    const int over = base::floorInt(static_cast<double>(AntwDau - grenze)) / 2;
    return static_cast<float>(over) / 10.0F + 1.0F;
}

i16 wrongAnswersAllowed(const core::Zustand& z, const Exercise& exercise) {
    constexpr int most = 4;
    if (exercise.isWritten() || z.ska_ausw == 0) return most;
    if (z.richtung < 2) return std::min(most, differentScales(z) - 1);
    int up = 0, down = 0;
    for (int i = 0; i <= z.einzelAnz; ++i) ++(z.einzel_wahl[i] > 0 ? up : down);
    return up > 4 && down > 4 ? most : up - 1;
}

i16 confusedCode(const core::Zustand& z, int skala_nr, i16 asked) {
    const int number = skala_nr + 1;
    if (z.ska_ausw == 0) return number * base::sgn(asked);
    i16 code = 0;
    for (int k = 0; k <= z.einzelAnz; ++k) {
        if (std::abs(z.einzel_wahl[k]) != number) continue;
        const int richtung = base::sgn(z.einzel_wahl[k]);
        code = number * richtung;
        // A direction is compared with a whole code: it holds for the first scale only, and the
        // last entry decides for all others.
        if (richtung == asked) break;
    }
    return code;
}

}  // namespace engine
