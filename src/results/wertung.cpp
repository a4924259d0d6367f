#include "results/wertung.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace results {

namespace {

using core::uebung::bestimmen;

/// Column that marks the presence of a slot in modes above training.
constexpr int anwesend = 3;

int ganz(float v) { return base::rounded(static_cast<double>(v)); }

}  // namespace

void Wertung::vorbereiten() {
    auswertung.init_arr(20.0F, 6.0F);
    ergebnis_best.init_arr(20);
}

void Wertung::ErgebnisBuchen(i16 i, float wert) {
    const core::Zustand& z = p.zustand;
    if (!core::gewertet(z)) return;
    const float gebucht = wert - 4 * z.bewertung_basis;
    if (core::imTraining(z)) {
        auswertung.Increment(i, 0);
        auswertung.Add(i, 1, gebucht);
    } else if (z.ueb_typ == bestimmen) {
        auswertung.SaveBest(i, gebucht);
    } else {
        auswertung.PlatzSchaffen(i, z.bestAnz);
        auswertung.SortASaveBest(i, gebucht, z.bestAnz);
    }
}

ErgebnisZeile ergebnisZeile(const Auswertung& auswertung, const core::Zustand& z, i16 slot) {
    const auto r = [&](int x) { return auswertung.read(slot, x); };
    const float bester = z.bewertung_basis * -8.0F;  // what a right first answer books
    int grenze = 0, summe = 0;
    bool zaehlt = true;
    if (!core::imTest(z)) {
        zaehlt = r(0) > 0;
        grenze = ganz(bester * r(0));
        summe = std::min(0, ganz(r(1)));
    } else if (z.ueb_typ == bestimmen) {
        zaehlt = r(anwesend) > 0;
        grenze = ganz(bester * 2);
        summe = ganz(r(0) + r(1));
    } else {
        const int n = std::min(ganz(r(0)), int(z.bestAnz));
        zaehlt = n > 0;
        grenze = ganz(bester * static_cast<float>(n));
        for (int j = 2; j <= n + 1; ++j) summe += ganz(r(j));
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
