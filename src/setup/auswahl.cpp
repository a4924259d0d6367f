#include "setup/auswahl.h"

#include "core/wort.h"

#include <algorithm>
#include <cstdlib>

namespace setup {

namespace wort = core::wort;

namespace {

constexpr int tetrachorde = 6;
constexpr int absteigend = 1;

form::ItemList::Item eintrag(const core::Katalog& katalog, int skal_typ, int nr, int richtung) {
    const bool ab = richtung == absteigend;
    const std::string vorn = ab ? "- " : "+ ";
    const std::string hinten = skal_typ == tetrachorde ? katalog.tetra_name[nr][richtung] : "";
    return {vorn + katalog.keptName(skal_typ, nr) + hinten, ab ? -(nr + 1) : nr + 1,
            vorn + katalog.skal_name[skal_typ][nr] + hinten};
}

}  // namespace

std::vector<form::ItemList::Item> skalenZurWahl(const core::Katalog& katalog, int skal_typ,
                                                Richtungen richtungen) {
    std::vector<form::ItemList::Item> liste;
    const int letzte = core::katalog::kategorie(skal_typ).skal_max;
    for (int nr = 0; nr <= letzte; ++nr) {
        if (richtungen.abfolge == 1) {
            liste.push_back(
                {katalog.keptName(skal_typ, nr), nr + 1, katalog.skal_name[skal_typ][nr]});
            continue;
        }
        for (const int richtung : {0, absteigend})
            if (richtungen.beide() || richtungen.richtung == richtung)
                liste.push_back(eintrag(katalog, skal_typ, nr, richtung));
    }
    return liste;
}

int sortierteStelle(const std::vector<form::ItemList::Item>& liste, int code) {
    const auto groesse = std::abs(code);
    const auto stelle =
        std::ranges::find_if(liste, [&](const auto& e) { return groesse <= std::abs(e.data); });
    const auto p = static_cast<int>(stelle - liste.begin());
    const bool gleiche = stelle != liste.end() && std::abs(stelle->data) == groesse;
    return gleiche && code <= 0 ? p + 1 : p;
}

Urteil auswahlBeurteilen(const std::vector<form::ItemList::Item>& gewaehlt, int final,
                         Richtungen richtungen) {
    const int mehr = final == 1 ? 1 : 0;
    const auto anzahl = static_cast<int>(gewaehlt.size());
    if (!richtungen.beide()) return anzahl <= mehr + 1 ? Urteil::ZuWenig : Urteil::Genug;
    if (anzahl < 2 * mehr + 4) return Urteil::ZuWenig;
    const auto auf =
        static_cast<int>(std::ranges::count_if(gewaehlt, [](const auto& e) { return e.data > 0; }));
    const auto ab =
        static_cast<int>(std::ranges::count_if(gewaehlt, [](const auto& e) { return e.data < 0; }));
    // Few of a direction must be balanced; from five of each on any numbers do.
    const auto wenige = [&](int n) { return n >= mehr + 2 && n <= 4; };
    if (wenige(auf) || wenige(ab)) return auf == ab ? Urteil::Genug : Urteil::Ungleich;
    return auf < 5 || ab < 5 ? Urteil::ZuWenig : Urteil::Genug;
}

wort::Id hinweisWort(int final, Richtungen richtungen, int flag) {
    constexpr std::array mindestens{wort::atLeast2, wort::atLeast3};
    constexpr std::array jeRichtung{wort::atLeast2PerDirection, wort::atLeast3PerDirection};
    const std::size_t strenger = final == 1 ? 1 : 0;
    if (!richtungen.beide()) return mindestens[strenger];
    return flag != 0 ? wort::sameNumberPerDirection : jeRichtung[strenger];
}

}  // namespace setup
