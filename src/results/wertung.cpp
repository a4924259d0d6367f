#include "results/wertung.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace results {

namespace {

using core::uebung::bestimmen;

int ganz(float v) { return base::rounded(static_cast<double>(v)); }

}  // namespace

void Wertung::vorbereiten() {
    auswertung.init_arr(20.0F, 6.0F);
    ergebnis_best.init_arr(20);
}

void Wertung::ErgebnisBuchen(i16 i, float wert) {
    if (!core::isScored(z)) return;
    const float gebucht = wert - 4 * z.bewertung_basis;
    if (core::isTraining(z)) {
        auswertung.Increment(i, spalte::anzahl);
        auswertung.Add(i, spalte::summe, gebucht);
    } else if (z.ueb_typ == bestimmen) {
        auswertung.SaveBest(i, gebucht);
    } else {
        auswertung.PlatzSchaffen(i, z.bestAnz);
        auswertung.SortASaveBest(i, gebucht, z.bestAnz);
    }
}

void Wertung::AnwesenheitMerken(i16 code) {
    const bool schriftlich = core::isTest(z) && z.ueb_typ != bestimmen;
    auswertung.Increment(core::skalaSlot(code, z.skal_anz),
                         schriftlich ? spalte::anwesendSchriftlich : spalte::anwesend);
}

ErgebnisZeile ergebnisZeile(const Auswertung& auswertung, const core::Zustand& z, i16 slot) {
    const auto r = [&](int x) { return auswertung.read(slot, x); };
    const float bester = z.bewertung_basis * -8.0F;  // what a right first answer books
    int grenze = 0, summe = 0;
    bool zaehlt = true;
    if (!core::isTest(z)) {
        zaehlt = r(spalte::anzahl) > 0;
        grenze = ganz(bester * r(spalte::anzahl));
        summe = std::min(0, ganz(r(spalte::summe)));
    } else if (z.ueb_typ == bestimmen) {
        zaehlt = r(spalte::anwesend) > 0;
        grenze = ganz(bester * 2);
        summe = ganz(r(spalte::zweitbester) + r(spalte::bester));
    } else {
        const int n = std::min(ganz(r(spalte::anzahl)), int(z.bestAnz));
        zaehlt = n > 0;
        grenze = ganz(bester * static_cast<float>(n));
        for (int j = 0; j < n; ++j) summe += ganz(r(spalte::beste + j));
    }
    if (!zaehlt || grenze == 0) return {};
    return {true, static_cast<float>(summe) / static_cast<float>(grenze)};
}

std::string prozentText(float anteil) {
    const double zehntel = std::nearbyint(static_cast<double>(anteil) * 1000.0) / 10.0;
    char text[32];
    const auto ende = std::to_chars(text, text + sizeof text, zehntel == 0 ? 0.0 : zehntel,
                                    std::chars_format::fixed, 1)
                          .ptr;
    return std::string(text, ende) + "%";
}

}  // namespace results
