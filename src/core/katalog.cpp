#include "core/katalog.h"

#include "core/worte.h"

#include <string_view>
#include <utility>

namespace core {

namespace {

/// Names of the scales of the rotating categories, by degree.
struct RotierendeNamen {
    int skal_typ;
    std::array<wort::Id, 7> worte;
};
constexpr std::array rotierendeNamen{
    RotierendeNamen{0,
                    {wort::ionian, wort::dorian, wort::phrygian, wort::lydian, wort::mixolydian,
                     wort::aeolian, wort::locrian}},
    RotierendeNamen{
        1,
        {wort::melodicMinor, wort::dorianFlat2, wort::lydianSharp5, wort::mixolydianSharp4,
         wort::mixolydianFlat6, wort::locrianSharp2, wort::superLocrian}},
};

/// The modes whose lower or upper half a tetrachord is; none: only one mode.
struct TetraModi {
    int skala_nr;
    int richtung;  ///< 0 ascending, 1 descending
    wort::Id erster, zweiter;
};
constexpr std::array tetraModi{
    TetraModi{0, 0, wort::ionian, wort::mixolydian},
    TetraModi{0, 1, wort::ionian, wort::lydian},
    TetraModi{2, 0, wort::phrygian, wort::locrian},
    TetraModi{2, 1, wort::phrygian, wort::aeolian},
    TetraModi{5, 0, wort::dorian, wort::aeolian},
    TetraModi{5, 1, wort::dorian, wort::mixolydian},
    TetraModi{6, 0, wort::lydian, wort::none},
    TetraModi{6, 1, wort::locrian, wort::none},
};

constexpr std::array bereichWorte{wort::basicSettings, wort::setup, wort::result};
constexpr std::array modusWorte{wort::tryOut, wort::training, wort::continueTraining, wort::test,
                                wort::exam};

}  // namespace

std::string Katalog::keptName(int skal_typ, int skala_nr) const {
    constexpr std::array<std::pair<std::string_view, char>, 2> signs{{{"♭", 'b'}, {"♯", '#'}}};
    std::string name = skal_name[skal_typ][skala_nr];
    for (const auto& [sign, letter] : signs)
        for (auto at = name.find(sign); at != std::string::npos; at = name.find(sign, at))
            name.replace(at, sign.size(), 1, letter);
    return name;
}

void Katalog::KatalogInit(Worte& worte) {
    const auto Wort = [&](wort::Id wort) { return worte.Wort(wort); };
    for (int typ = 0; typ < katalog::kategorienAnz; ++typ) {
        const auto& kategorie = katalog::kategorie(typ);
        skal_typ_name[typ] = Wort(kategorie.wort);
        for (int nr = 0; nr <= kategorie.skal_max; ++nr)
            skal_name[typ][nr] = Wort(wort::number) + " " + std::to_string(nr + 1);
    }
    for (const auto& [typ, namen] : rotierendeNamen)
        for (int nr = 0; nr < 7; ++nr)
            skal_name[typ][nr] = Wort(namen[static_cast<std::size_t>(nr)]);
    for (const auto& skala : katalog::eigeneMuster)
        if (skala.wort != wort::none) skal_name[skala.skal_typ][skala.skala_nr] = Wort(skala.wort);
    for (const auto& modi : tetraModi) {
        std::string& name = tetra_name[modi.skala_nr][modi.richtung];
        name = Wort(wort::colon) + Wort(modi.erster);
        if (modi.zweiter != wort::none) name += Wort(wort::slash) + Wort(modi.zweiter);
        name += " ";
    }
    titelWort = Wort(wort::scales);
    for (int i = 0; i < 3; ++i) bereich_name[i] = Wort(bereichWorte[static_cast<std::size_t>(i)]);
    typ_name[1] = Wort(wort::identifyScales);
    typ_name[4] = Wort(wort::writeScales);
    for (int i = 0; i < 5; ++i) modus_name[i] = Wort(modusWorte[static_cast<std::size_t>(i)]);
}

}  // namespace core
