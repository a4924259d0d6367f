#include "engine/aufgabenwahl.h"

#include "base/runtime_error.h"
#include "engine/melodik.h"

#include <cstdlib>

namespace engine {

int Aufgabenwahl::verschiedeneSkalen() const {
    if (z.ska_ausw == 0) return z.skal_anz + 1;
    int anzahl = 0;
    for (int i = 0; i <= z.einzelAnz; ++i) {
        bool neu = true;
        for (int j = 0; j < i; ++j)
            neu = neu && std::abs(z.einzel_wahl[i]) != std::abs(z.einzel_wahl[j]);
        anzahl += neu ? 1 : 0;
    }
    return anzahl;
}

void Aufgabenwahl::LaufBeginn() {
    SkalaTabellen(a, z.skal_typ);
    a.oktSpanne = oktTab.at(static_cast<std::size_t>(int(z.oktAnz))) - 2;
    tonart_.LaufBeginn();
    a.letzteSkala = 11;
    a.letzterTon = 0;
    matbox_.PotSkalaBestimmen();
    if (verschiedeneSkalen() < 2 && tonart_.fest() && a.oktSpanne == 0)
        throw base::RuntimeError(base::ErrorNumber::InvalidCall,
                                 "one scale in one key and octave: every task would be the same");
}

void Aufgabenwahl::Ziehen(int floodPercent) {
    bool nutzeBox = z.uebungsmodus > core::modus::ausprobieren;
    int versuch = 0;
    do {
        tonart_.Ziehen();
        if (++versuch >= z.matboxanz) nutzeBox = false;
        // After a plain draw the row drawn last stays in force.
        if (const i16 zeile = matbox_.Ziehen(nutzeBox, floodPercent); zeile > 0) a.matIndex = zeile;
        tonart_.Toene();
    } while (a.letzteSkala == z.skala_nr && a.letzterTon == a.noten[0]);

    if (z.uebungsmodus > core::modus::fortsetzung)
        matbox_.verbrauchen((z.skala_nr + 1) * z.akt_richtung);
    if (z.abfolge == 1) MelodikFolge(a, z.skala_nr, rnd_);
    a.letzteSkala = z.skala_nr;
    a.letzterTon = a.noten[0];
}

}  // namespace engine
