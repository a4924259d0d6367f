#include "engine/fortschritt.h"

#include "base/rounding.h"

#include <algorithm>
#include <cmath>

namespace engine {

float ZeitStrafeBerechnen(float AntwDau, i16 zeit_faktor) {
    const float grenze = static_cast<float>(int(zeit_faktor));
    if (AntwDau <= grenze) return 0;
    return static_cast<float>(base::floorInt(static_cast<double>(AntwDau - grenze)) / 2) / 10.0F +
           1.0F;
}

float antwortDauer(float antw_ende, float AntwDauStart, float AntwDau) {
    return std::floor((antw_ende - AntwDauStart + AntwDau) * 10 + 0.5F);
}

i16 erlaubteFehler(const core::Zustand& z, int verschiedeneSkalen) {
    if (z.ska_ausw == 0) return 4;
    if (z.richtung < 2) return verschiedeneSkalen > 4 ? 4 : verschiedeneSkalen - 1;
    int auf = 0, ab = 0;
    for (int i = 0; i <= z.einzelAnz; ++i) ++(z.einzel_wahl[i] > 0 ? auf : ab);
    return auf > 4 && ab > 4 ? 4 : auf - 1;
}

float FortschrittWerten(core::Zustand& z, results::Wertung& wertung, Matbox& matbox,
                        i16 fehlerMax) {
    const i16 code = (z.skala_nr + 1) * z.akt_richtung;
    const auto wiederholt = static_cast<float>(int(z.whlgAnz));
    float w = 0;
    if (z.punkte == gutschrift) {
        // Every repetition and every tenth of penalty eats into the credit.
        z.punkte = std::min(0.0F, wiederholt + z.punkte + z.zeit_malus);
        w = z.bewertung_basis * z.punkte;
    } else if (z.punkte > 0) {
        z.punkte = std::min(z.punkte + wiederholt, static_cast<float>(int(fehlerMax)));
        w = z.punkte;
    }
    wertung.ErgebnisBuchen(core::skalaSlot(code, z.skal_anz), w);

    if (z.uebungsmodus > core::modus::fortsetzung || z.punkte == 0) return w;
    matbox.gewichten(code, base::roundedI16(static_cast<double>(z.punkte)));
    if (z.punkte <= 0) return w;
    // What was confused with the right scale comes up more often too.
    for (int k = 1; k <= z.ton_anz_akt; ++k)
        if (z.FalschSkala[k] != 0) matbox.gewichten(z.FalschSkala[k], 1);
    return w;
}

Trainingsstand TrainingFortschreiben(core::Zustand& z, Matbox& matbox) {
    matbox.MatNeu();
    const i16 obergrenze = matbox.obergrenze();
    if (z.matbox_zahl < 1) {
        z.matbox_zahl = 0;
        return Trainingsstand::Ziel;
    }
    if (z.matbox_zahl > obergrenze - 1) {
        z.matbox_zahl = obergrenze;
        return Trainingsstand::Gescheitert;
    }
    return Trainingsstand::Laeuft;
}

}  // namespace engine
