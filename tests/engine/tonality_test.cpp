// What is asked: as the catalogue says, within its range, in tune, and spelled right on its staff.
#include "engine/tonality.h"

#include "engine/bare_run.h"

#include <gtest/gtest.h>

#include <set>

namespace engine {
namespace {

/// Semitones of a scale above its first note, as the catalogue has it.
int step(int typ, int nr, int i) {
    if (const auto* own = katalog::eigenesMuster(typ, nr)) return base::at(own->stufe, i);
    const auto pattern = katalog::grundmuster(typ);
    const int degrees = pattern.size() == 6 ? 5 : 7;
    return base::at(pattern, (nr + i) % degrees) + 12 * ((nr + i) / degrees) -
           base::at(pattern, nr);
}

TEST(Tones, EveryTaskSoundsAsTheCatalogueSaysWithinItsRangeAndDirection) {
    for (int typ = 0; typ < katalog::kategorienAnz; ++typ)
        for (int final = 0; final <= 2; ++final)
            for (int octaves = 0; octaves <= 3; ++octaves)
                for (int richtung = 0; richtung <= 2; ++richtung) {
                    BareRun bare(hearing, typ * 100 + final * 10 + octaves);
                    bare.category(typ);
                    bare.z.final = final;
                    bare.z.oktAnz = octaves;
                    bare.z.richtung = richtung;
                    bare.z.FrquMinAkt = 36;
                    bare.z.FrquMaxAkt = 36 + 12 * (octaves + 2);
                    bare.begin();
                    std::set<int> drawn;
                    for (int n = 0; n < 60; ++n) {
                        const Task& a = bare.run->draw();
                        drawn.insert(a.akt_richtung);
                        ASSERT_EQ(a.tonAnz, katalog::kategorie(typ).tonAnz);
                        for (int j = 0; j < a.tonAnz; ++j) {
                            ASSERT_EQ(a.noten[j] - a.noten[0], step(typ, a.skala_nr, j));
                            ASSERT_EQ(a.index(j), a.akt_richtung == 1 ? j : int(a.tonAnz) - 1 - j);
                        }
                        ASSERT_GE(a.noten[0], bare.z.FrquMinAkt);
                        ASSERT_LE(a.noten[a.tonAnz - 1], bare.z.FrquMaxAkt);
                    }
                    EXPECT_EQ(drawn.contains(1), richtung != 1);
                    EXPECT_EQ(drawn.contains(-1), richtung != 0);
                }
}

TEST(Tones, OneFinalOrOneSignatureHoldsForTheWholeRunElseEveryKeyComesUp) {
    for (const int typ : {0, 1, 4})
        for (const int final : {0, 1, 2}) {
            SCOPED_TRACE(std::to_string(typ) + " " + std::to_string(final));
            BareRun bare(hearing, typ + final);
            bare.category(typ);
            bare.z.final = final;
            bare.z.oktAnz = 1;
            bare.begin();
            std::set<int> finals, signatures, octaves;
            for (int n = 0; n < 1000; ++n) {
                const Task& a = bare.run->draw();
                finals.insert(a.noten[0] % 12);
                signatures.insert((a.noten[0] - base::at(katalog::grundmuster(typ), a.skala_nr)) %
                                  12);
                octaves.insert((a.noten[0] - bare.z.FrquMinAkt) / 12);
            }
            EXPECT_EQ(finals.size() == 1, final == 1);
            EXPECT_EQ(signatures.size() == 1, final == 0);
            if (final == 2) {
                EXPECT_EQ(signatures.size(), 11U) << "1 to 11 semitones";
            }
            EXPECT_EQ(octaves.size(), 2U);
        }
}

TEST(Tuning, CorrectsByDegreeOrByPitchClass) {
    struct Row {
        const char* name;
        int typ, nr, transp, stimmung;
        std::array<int, 8> bends;
    };
    for (const Row& row :
         {Row{"Pythagorean, ionian", 0, 0, 3, 1, {-2, -1, 1, -3, -1, 0, 1, -2}},
          {"Pythagorean, variant from its third", 1, 2, 4, 1, {4, -3, -1, 0, 1, -2, -1, 4}},
          {"Pythagorean, minor with its own pattern", 2, 3, 1, 1, {-3, -1, 0, 1, -2, -1, 1, -3}},
          {"meantone, phrygian on F", 0, 2, 1, 2, {4, 2, 9, 4, 5, 2, 3, 4}},
          {"equal", 0, 0, 2, 0, {0, 0, 0, 0, 0, 0, 0, 0}}}) {
        SCOPED_TRACE(row.name);
        BareRun bare;
        bare.category(row.typ);
        bare.z.stimmung = row.stimmung;
        bare.begin();
        const Task* a = nullptr;
        do a = &bare.run->draw();
        while (a->skala_nr != row.nr || (row.stimmung == 2 && a->transp != row.transp));
        for (int j = 0; j < 8; ++j) EXPECT_EQ(a->stimmWert[j], base::at(row.bends, j)) << j;
    }
}

TEST(Key, IsDrawnAsTheExerciseWantsAndSpelledOnOneLetterANote) {
    for (const Exercise* exercise : {&reading, &writing}) {
        std::set<int> keys;
        BareRun bare(*exercise);
        bare.z.oktAnz = 1;
        bare.begin();
        for (int n = 0; n < 3000; ++n) {
            const Task& a = bare.run->draw();
            keys.insert(a.quintLage);
            ASSERT_EQ(a.noten[7], a.noten[0] + 12);
            for (int k = 0; k < 8; ++k) {
                ASSERT_EQ(core::pitchClass(a.notenQz[k]), a.noten[k] % 12);
                ASSERT_EQ(core::letter(a.notenQz[k]), (core::letter(a.notenQz[0]) + k) % 7);
                ASSERT_LE(std::abs(core::accidental(a.notenQz[k])), 1);
            }
        }
        EXPECT_EQ(keys.size(), exercise == &reading ? 15U : 12U);
        EXPECT_EQ(keys.contains(0), exercise == &reading);
        EXPECT_EQ(*keys.rbegin(), exercise == &reading ? 7 : 6);
    }
}

}  // namespace
}  // namespace engine
