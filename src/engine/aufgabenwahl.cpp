#include "engine/aufgabenwahl.h"

#include "base/runtime_error.h"
#include "engine/melodik.h"

#include <cstdlib>

namespace engine {

int verschiedeneSkalen(const core::Zustand& z) {
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
    tonart_.LaufBeginn(a);
    a.melodie = z.abfolge == 1;
    matbox_.PotSkalaBestimmen();
    if (verschiedeneSkalen(z) < 2 && tonart_.fest() && tonart_.oktSpanne() == 0)
        throw base::RuntimeError(base::ErrorNumber::InvalidCall,
                                 "one scale in one key and octave: every task would be the same");
}

const Aufgabe& Aufgabenwahl::Ziehen() {
    const i16 letzteSkala = a.skala_nr, letzterTon = a.noten[0];
    const bool ausBeutel = art_ == Tonart::Geschrieben && core::imTest(z);
    bool nutzeBox = core::gewertet(z);
    int versuch = 0;
    do {
        tonart_.Ziehen(a);
        if (++versuch >= matbox_.matboxanz()) nutzeBox = false;
        // After a plain draw the row drawn last stays in force.
        if (const i16 zeile = matbox_.Ziehen(nutzeBox, a); zeile > 0) matIndex_ = zeile;
        if (ausBeutel) a.quintLage = matbox_.tonart(matIndex_);
        tonart_.Toene(a);
    } while (letzteSkala == a.skala_nr && letzterTon == a.noten[0]);

    if (core::imTest(z)) matbox_.verbrauchen(a.code());
    if (a.melodie) MelodikFolge(a, rnd_);
    a.verlauf = {};
    return a;
}

}  // namespace engine
