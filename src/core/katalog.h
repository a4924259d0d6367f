#pragma once
#include "base/array.h"
#include "base/i16.h"
#include "core/wort.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>

namespace core {

class Worte;

namespace katalog {

constexpr int kategorienAnz = 7;
/// Most tones of a scale, the octave included.
constexpr int maxToene = 9;
constexpr int maxSkalen = 10;

/// A category of scales.
struct Kategorie {
    wort::Id wort;  ///< its name
    int skal_max;   ///< highest scale number
    int tonAnz;     ///< tones of a scale, the closing octave included where there is one
    std::array<int, 2> bild_basis;  ///< first picture: same final, same key signature
    bool rotiert;                   ///< its scales are one pattern read from different degrees
};

inline constexpr std::array<Kategorie, kategorienAnz> kategorien{{
    {wort::churchModes, 6, 8, {7, 0}, true},
    {wort::churchModeVariants, 6, 8, {21, 14}, true},  // modes of the melodic minor
    {wort::minorVariants, 7, 8, {30, 30}, false},
    {wort::exoticScales, 7, 9, {40, 40}, false},  // eight-tone and exotic scales
    {wort::pentatonicScales, 4, 6, {50, 55}, true},
    {wort::wholeToneQuartalBlues, 8, 7, {60, 60}, false},
    {wort::tetrachords, 9, 4, {70, 70}, false},
}};

constexpr const Kategorie& kategorie(int skal_typ) { return base::at(kategorien, skal_typ); }
constexpr bool rotiert(int skal_typ) { return kategorie(skal_typ).rotiert; }

inline constexpr std::array diatonisch{0, 2, 4, 5, 7, 9, 11};
inline constexpr std::array melodischMoll{0, 2, 3, 5, 7, 9, 11};
inline constexpr std::array pentatonisch{0, 2, 4, 7, 9, 12};

/// Semitones above the first degree of the pattern that the scales of a rotating category share:
/// scale n is the pattern read from degree n. Empty for the others.
constexpr std::span<const int> grundmuster(int skal_typ) {
    switch (skal_typ) {
        case 0:
            return diatonisch;
        case 1:
            return melodischMoll;
        case 4:
            return pentatonisch;
        default:
            return {};
    }
}

/// A scale with a pattern of its own: semitones above its first tone, and the word of its name
/// (none: numbered).
struct Skala {
    int skal_typ;
    int skala_nr;
    wort::Id wort;
    std::array<int, maxToene> stufe;
};

inline constexpr std::array eigeneMuster{
    Skala{2, 0, wort::naturalMinor, {0, 2, 3, 5, 7, 8, 10, 12}},
    Skala{2, 1, wort::harmonicMinor, {0, 2, 3, 5, 7, 8, 11, 12}},
    Skala{2, 2, wort::harmonicMinorFifthMode, {0, 1, 4, 5, 7, 8, 10, 12}},
    Skala{2, 3, wort::harmonicMajor, {0, 2, 4, 5, 7, 8, 11, 12}},
    Skala{2, 4, wort::melodicMinor, {0, 2, 3, 5, 7, 9, 11, 12}},
    Skala{2, 5, wort::phrygianMinor, {0, 1, 3, 5, 7, 8, 10, 12}},
    Skala{2, 6, wort::hungarianMinor, {0, 2, 3, 6, 7, 8, 11, 12}},  // minor with raised fourth
    Skala{2, 7, wort::doubleHarmonicMajor, {0, 1, 4, 5, 7, 8, 11, 12}},
    Skala{3, 0, wort::flamenco1, {0, 1, 3, 4, 5, 7, 8, 10, 12}},
    Skala{3, 1, wort::flamenco2, {0, 1, 3, 4, 6, 8, 9, 11, 12}},
    Skala{3, 2, wort::octatonicWholeHalf, {0, 2, 3, 5, 6, 8, 9, 11, 12}},
    Skala{3, 3, wort::octatonicHalfWhole, {0, 1, 3, 4, 6, 7, 9, 10, 12}},
    Skala{3, 4, wort::bebopDominant, {0, 2, 4, 5, 7, 9, 10, 11, 12}},
    Skala{3, 5, wort::bebopMajor, {0, 2, 4, 5, 7, 8, 9, 11, 12}},
    Skala{3, 6, wort::messiaen4, {0, 1, 2, 5, 6, 7, 8, 11, 12}},   // mode of limited transposition
    Skala{3, 7, wort::messiaen6, {0, 2, 4, 5, 6, 8, 10, 11, 12}},  // mode of limited transposition
    Skala{5, 0, wort::blues, {0, 3, 5, 6, 7, 10, 12}},
    Skala{5, 1, wort::wholeTone, {0, 2, 4, 6, 8, 10, 12}},
    Skala{5, 2, wort::messiaen5, {0, 1, 5, 6, 7, 11, 12}},  // mode of limited transposition
    Skala{5, 3, wort::fourthsFromC, {0, 1, 3, 5, 8, 10, 12}},
    Skala{5, 4, wort::fourthsFromG, {0, 3, 5, 7, 8, 10, 12}},
    Skala{5, 5, wort::fourthsFromD, {0, 2, 3, 5, 7, 10, 12}},
    Skala{5, 6, wort::fourthsFromA, {0, 2, 5, 7, 9, 10, 12}},
    Skala{5, 7, wort::fourthsFromE, {0, 2, 4, 5, 9, 9, 12}},  // two equal degrees, kept
    Skala{5, 8, wort::fourthsFromB, {0, 2, 4, 7, 9, 11, 12}},
    Skala{6, 0, wort::none, {0, 2, 4, 5}},  // tetrachords
    Skala{6, 1, wort::none, {0, 1, 4, 5}},
    Skala{6, 2, wort::none, {0, 1, 3, 5}},
    Skala{6, 3, wort::none, {0, 1, 2, 5}},
    Skala{6, 4, wort::none, {0, 3, 4, 5}},
    Skala{6, 5, wort::none, {0, 2, 3, 5}},
    Skala{6, 6, wort::none, {0, 2, 4, 6}},
    Skala{6, 7, wort::none, {0, 2, 5, 6}},
    Skala{6, 8, wort::none, {0, 3, 4, 6}},
    Skala{6, 9, wort::none, {0, 3, 5, 6}},
};

/// The pattern of a scale of a category that does not rotate; nullptr when there is no such scale.
constexpr const Skala* eigenesMuster(int skal_typ, int skala_nr) {
    const auto* it = std::ranges::find_if(eigeneMuster, [&](const Skala& s) {
        return s.skal_typ == skal_typ && s.skala_nr == skala_nr;
    });
    return it == eigeneMuster.end() ? nullptr : it;
}

/// A line of tones from the first one of a scale to its last, in semitones; 0 behind it.
using Leiter = std::array<int, maxToene>;

/// The pattern that a scale is read from, from its own first degree: what the scales of a rotating
/// category share, or the scale's own.
constexpr Leiter pattern(int skal_typ, int skala_nr) {
    if (const Skala* skala = eigenesMuster(skal_typ, skala_nr)) return skala->stufe;
    Leiter gemeinsam{};
    std::ranges::copy(grundmuster(skal_typ), gemeinsam.begin());
    return gemeinsam;
}

/// Semitones of the scale's tones above its first one. A scale of a rotating category is its
/// pattern read from degree `skala_nr`, and once more around.
constexpr Leiter scaleTones(int skal_typ, int skala_nr) {
    Leiter toene = pattern(skal_typ, skala_nr);
    if (!rotiert(skal_typ)) return toene;
    const Leiter m = toene;
    const int grade = kategorie(skal_typ).tonAnz - 1;
    for (int i = 0; i < maxToene; ++i) {
        const int grad = skala_nr + i;
        base::at(toene, i) =
            base::at(m, grad % grade) + 12 * (grad / grade) - base::at(m, skala_nr);
    }
    return toene;
}

/// Tuning corrections per diatonic degree for Pythagorean tuning, in steps of the pitch bend's
/// upper byte (3.125 cents at a bend range of two semitones).
inline constexpr std::array<int, 7> stufenStimm(int skal_typ) {
    return {-2, -1, skal_typ == 1 ? 4 : 1, -3, -1, 0, 1};
}

/// Tuning corrections per pitch class for meantone tuning after Kirnberger, in the same steps.
inline constexpr std::array<int, 12> mittelTab{5, 2, 6, 3, 1, 4, 2, 6, 9, 0, 4, 1};

/// The tunings, values of `stimmung`.
namespace stimmung {
constexpr int gleich = 0, pythagoreisch = 1, mitteltoenig = 2;
}

/// Tuning correction of a tone, in the same steps: by its degree in the base scale of its category
/// in Pythagorean tuning, by its pitch class in meantone.
constexpr int tuningCorrection(int stimmung, int skal_typ, int grad, int pitchClass) {
    switch (stimmung) {
        case stimmung::pythagoreisch:
            return base::at(stufenStimm(skal_typ), grad);
        case stimmung::mitteltoenig:
            return base::at(mittelTab, pitchClass);
        default:
            return 0;
    }
}

// Laws of the tables: every scale that should close on the octave does, none falls, and every
// category has as many scales as it says.
static_assert(std::ranges::all_of(eigeneMuster, [](const Skala& s) {
    const int n = kategorie(s.skal_typ).tonAnz;
    return (s.skal_typ == 6 || base::at(s.stufe, n - 1) == 12) && s.stufe[0] == 0 &&
           std::is_sorted(s.stufe.begin(), s.stufe.begin() + n);
}));
static_assert([] {
    int scales = 0;
    for (int typ = 0; typ < kategorienAnz; ++typ)
        for (int nr = 0; nr <= kategorie(typ).skal_max; ++nr) {
            ++scales;
            const bool eigen = std::ranges::any_of(eigeneMuster, [&](const Skala& s) {
                return s.skal_typ == typ && s.skala_nr == nr;
            });
            if (rotiert(typ) == eigen) return false;
        }
    return scales == 54;
}());

/// Milliseconds per quarter note of the ten tempos: the integer part of 60000 by the tempo.
inline constexpr std::array tempo_dauer{2000, 1500, 1000, 750, 600, 500, 428, 375, 333, 300};

/// Their labels, each 17 characters.
inline constexpr std::array<const char*, 10> tempo_name{
    " 30              ", " 40 (Largo)      ", " 60 (Larghetto)  ", " 80 (Adagio)     ",
    "100 (Andante)    ", "120 (Moderato)   ", "140 (Allegro)    ", "160 (Vivace)     ",
    "180 (Presto)     ", "200 (Prestissimo)"};

}  // namespace katalog

/// The vocabulary of the catalogue in the language in force.
struct Katalog {
    base::FixedArray<std::string, 7> skal_typ_name;
    base::FixedArray<base::FixedArray<std::string, 11>, 7> skal_name;  ///< [skal_typ][skala_nr]
    /// A scale's name as records and files have it: with b and # in place of the signs ♭ and ♯.
    std::string keptName(int skal_typ, int skala_nr) const;
    base::FixedArray<base::FixedArray<std::string, 2>, 10>
        tetra_name;  ///< [skala_nr][0 up, 1 down]
    std::string titelWort;
    base::FixedArray<std::string, 3> bereich_name;  ///< start form, set-up form, result form
    base::FixedArray<std::string, 5> typ_name;      ///< by ueb_typ; only 1 and 4 are set
    base::FixedArray<std::string, 5> modus_name;    ///< by uebungsmodus

    void KatalogInit(Worte& worte);
};

}  // namespace core
