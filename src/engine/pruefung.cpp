#include "engine/pruefung.h"

#include "base/rounding.h"

#include <cstdint>

namespace engine {

i16 ExamenDauer(const Aufgabendauer& dauer, int aufgaben) {
    const auto sekunden = [&](int tausendstel) {
        return static_cast<int>(std::int64_t{tausendstel} * aufgaben / 1000);
    };
    const int spielen = sekunden(dauer.vorfuehrung) + sekunden(dauer.wechsel);
    const int t = base::rounded(dauer.zeit_faktor * aufgaben / 10.0 + spielen);
    return ((t - 1) / 10 + 1) * 10;
}

Pruefungsplan planen(const Aufgabendauer& dauer, int potSkala) {
    Pruefungsplan plan{4 * potSkala, ExamenDauer(dauer, 4 * potSkala)};
    const auto auf = [&](int aufgaben) {
        plan.pruefAufgaben = aufgaben;
        plan.restZeit = ExamenDauer(dauer, aufgaben);
    };
    if (plan.restZeit > 600) {
        const int drei = base::rounded(plan.pruefAufgaben / 4.0 * 3);
        auf(drei + drei % 2);
        plan.gekuerzt = true;
    }
    if (plan.restZeit < 180) auf(base::rounded(plan.pruefAufgaben / 4.0 * 6));
    return plan;
}

}  // namespace engine
