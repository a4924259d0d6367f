#include "engine/toene.h"

#include "engine/draw.h"

#include <gtest/gtest.h>

namespace engine {
namespace {

TEST(Tones, EveryTaskSoundsAsTheCatalogueSaysWithinItsRangeAndDirection) {
    for (int typ = 0; typ < katalog::kategorienAnz; ++typ)
        for (int final = 0; final <= 2; ++final)
            for (int octaves = 0; octaves <= 3; ++octaves)
                for (int richtung = 0; richtung <= 2; ++richtung) {
                    Draw draw(typ * 100 + final * 10 + octaves);
                    draw.category(typ);
                    draw.z.final = final;
                    draw.z.oktAnz = octaves;
                    draw.z.richtung = richtung;
                    draw.z.abfolge = octaves % 2;
                    draw.z.FrquMinAkt = 36;
                    draw.z.FrquMaxAkt = 36 + 12 * (octaves + 2);
                    draw.wahl.LaufBeginn();
                    std::map<int, int> drawn;
                    for (int n = 0; n < 60; ++n) {
                        draw.wahl.Ziehen(50);
                        ++drawn[draw.z.akt_richtung];
                        const int nr = draw.z.skala_nr;
                        ASSERT_EQ(draw.a.tonAnz,
                                  katalog::kategorien[static_cast<std::size_t>(typ)].tonAnz);
                        for (int j = 0; j < draw.a.tonAnz; ++j)
                            ASSERT_EQ(draw.a.noten[j] - draw.a.noten[0], step(typ, nr, j))
                                << typ << ' ' << nr << ' ' << j;
                        ASSERT_GE(draw.a.noten[0], draw.z.FrquMinAkt);
                        ASSERT_LE(draw.a.noten[draw.a.tonAnz - 1], draw.z.FrquMaxAkt);
                    }
                    EXPECT_EQ(drawn.contains(1), richtung != 1);
                    EXPECT_EQ(drawn.contains(-1), richtung != 0);
                }
}

TEST(Tones, OneFinalOrOneSignatureHoldsForTheWholeRunElseEveryKeyComesUp) {
    for (const int typ : {0, 1, 4})
        for (const int final : {0, 1, 2}) {
            SCOPED_TRACE(std::to_string(typ) + " " + std::to_string(final));
            Draw draw(typ + final);
            draw.category(typ);
            draw.z.final = final;
            draw.z.oktAnz = 1;
            draw.wahl.LaufBeginn();
            std::map<int, int> finals, signatures, octaves;
            for (int n = 0; n < 1000; ++n) {
                draw.wahl.Ziehen(50);
                ++finals[draw.a.noten[0] % 12];
                ++signatures[(draw.a.noten[0] - draw.a.stufe[draw.z.skala_nr]) % 12];
                ++octaves[(draw.a.noten[0] - draw.z.FrquMinAkt) / 12];
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
          {"Pythagorean, variant from its third", 1, 2, 0, 1, {4, -3, -1, 0, 1, -2, -1, 4}},
          {"Pythagorean, minor with its own pattern", 2, 3, 0, 1, {-3, -1, 0, 1, -2, -1, 1, -3}},
          {"meantone, phrygian on E", 0, 2, 0, 2, {1, 4, 6, 0, 1, 5, 6, 1}},
          {"equal", 0, 0, 2, 0, {0, 0, 0, 0, 0, 0, 0, 0}}}) {
        SCOPED_TRACE(row.name);
        Draw draw;
        draw.category(row.typ);
        draw.z.final = 0;
        draw.z.stimmung = row.stimmung;
        draw.wahl.LaufBeginn();
        draw.a.transp = row.transp;
        draw.z.skala_nr = row.nr;
        draw.tonart.Toene();
        for (int j = 0; j < 8; ++j)
            EXPECT_EQ(draw.a.stimmWert[j], row.bends[static_cast<std::size_t>(j)]) << j;
    }
}

}  // namespace
}  // namespace engine
