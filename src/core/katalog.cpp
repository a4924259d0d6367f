#include "core/katalog.h"

#include "core/worte.h"

namespace core {

namespace {

constexpr int nummerWort = 426;
constexpr int doppelpunkt = 700;
constexpr int schraegstrich = 701;

/// Names of the scales of the rotating categories, by degree.
struct RotierendeNamen {
    int skal_typ;
    std::array<int, 7> worte;
};
constexpr std::array rotierendeNamen{
    // words
    RotierendeNamen{0, {344, 203, 435, 377, 402, 115, 375}},
    RotierendeNamen{1, {386, 204, 378, 403, 404, 376, 528}},
};

/// The modes whose lower or upper half a tetrachord is; 0: only one mode.
struct TetraModi {
    int skala_nr;
    int richtung;  ///< 0 ascending, 1 descending
    int erster, zweiter;
};
constexpr std::array tetraModi{
    // words
    TetraModi{0, 0, 344, 402}, TetraModi{0, 1, 344, 377}, TetraModi{2, 0, 435, 375},
    TetraModi{2, 1, 435, 115}, TetraModi{5, 0, 203, 115}, TetraModi{5, 1, 203, 402},
    TetraModi{6, 0, 377, 0},   TetraModi{6, 1, 375, 0},
};

constexpr std::array bereichWorte{287, 221, 224};          // words
constexpr std::array modusWorte{136, 564, 565, 550, 438};  // words

}  // namespace

void Katalog::KatalogInit(Worte& worte) {
    const auto Wort = [&](int id) { return worte.Wort(id); };
    for (int typ = 0; typ < katalog::kategorienAnz; ++typ) {
        const auto& kategorie = katalog::kategorie(typ);
        skal_typ_name[typ] = Wort(kategorie.wort);
        for (int nr = 0; nr <= kategorie.skal_max; ++nr)
            skal_name[typ][nr] = Wort(nummerWort) + " " + std::to_string(nr + 1);
    }
    for (const auto& [typ, namen] : rotierendeNamen)
        for (int nr = 0; nr < 7; ++nr)
            skal_name[typ][nr] = Wort(namen[static_cast<std::size_t>(nr)]);
    for (const auto& skala : katalog::eigeneMuster)
        if (skala.wort) skal_name[skala.skal_typ][skala.skala_nr] = Wort(skala.wort);
    for (const auto& modi : tetraModi) {
        std::string& name = tetra_name[modi.skala_nr][modi.richtung];
        name = Wort(doppelpunkt) + Wort(modi.erster);
        if (modi.zweiter) name += Wort(schraegstrich) + Wort(modi.zweiter);
        name += " ";
    }
    titelWort = Wort(491);
    for (int i = 0; i < 3; ++i) bereich_name[i] = Wort(bereichWorte[static_cast<std::size_t>(i)]);
    typ_name[1] = Wort(492);
    typ_name[4] = Wort(718);
    for (int i = 0; i < 5; ++i) modus_name[i] = Wort(modusWorte[static_cast<std::size_t>(i)]);
}

}  // namespace core
