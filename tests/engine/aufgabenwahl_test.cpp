#include "engine/aufgabenwahl.h"

#include "engine/draw.h"

#include <gtest/gtest.h>

#include <set>

namespace engine {
namespace {

TEST(Exam, EveryScaleDirectionComesOnceInEachHalf) {
    for (int seed = 0; seed < 30; ++seed)
        for (const bool chosen : {false, true}) {
            SCOPED_TRACE(seed);
            Draw draw(seed);
            draw.z.uebungsmodus = 4;
            draw.z.richtung = seed % 3;
            if (chosen) draw.choose({1, -1, 4, -6, 7});
            draw.wahl.LaufBeginn();
            const int half = 2 * draw.z.potSkala;
            draw.box.PruefungBeginnen(half);
            for (int which = 0; which < 2; ++which) {
                const auto bag = draw.pool();
                std::map<int, int> drawn;
                for (int n = 0; n < half; ++n) {
                    draw.wahl.Ziehen(0);
                    ++drawn[draw.code()];
                }
                EXPECT_EQ(drawn, bag);
                EXPECT_EQ(draw.pool(), (std::map<int, int>{{0, half}})) << "all used up";
                draw.box.MatFuellen(draw.z.richtung);
            }
        }
}

TEST(Selection, NeverTheSameScaleOnTheSameFirstNoteTwiceRunning) {
    for (int mode = 0; mode <= 4; ++mode)
        for (int final = 0; final <= 2; ++final)
            for (const int octaves : {0, 2}) {
                SCOPED_TRACE(testing::Message() << mode << ' ' << final << ' ' << octaves);
                Draw draw(mode * 10 + final);
                draw.z.uebungsmodus = mode;
                draw.z.final = final;
                draw.z.oktAnz = octaves;
                draw.choose({1, -1, 2});
                draw.wahl.LaufBeginn();
                if (mode == 1 || mode == 2) draw.box.TrainingBeginnen();
                for (int n = 0; n < 120; ++n) {
                    if (mode > 2 && n % 6 == 0) draw.box.PruefungBeginnen(6);
                    const int scale = draw.a.letzteSkala, first = draw.a.letzterTon;
                    draw.wahl.Ziehen(50);
                    ASSERT_FALSE(draw.z.skala_nr == scale && draw.a.noten[0] == first) << n;
                    ASSERT_EQ(std::ranges::count(draw.codes(), draw.code()), 1);
                }
            }
}

TEST(Selection, ARunThatCouldOnlyRepeatItselfIsRefused) {
    struct Row {
        const char* name;
        std::vector<int> codes;
        int final, octaves;
        bool refused;
    };
    for (const Row& row : {Row{"one scale, one key, one octave", {3}, 0, 0, true},
                           {"one final", {3}, 1, 0, true},
                           {"both directions of one scale", {3, -3}, 0, 0, true},
                           {"the same one twice", {3, 3}, 1, 0, true},
                           {"keys change", {3}, 2, 0, false},
                           {"octaves change", {3}, 0, 1, false},
                           {"two scales", {3, 4}, 1, 0, false}}) {
        SCOPED_TRACE(row.name);
        Draw draw;
        draw.z.ska_ausw = 1;
        draw.z.einzelAnz = row.codes.size() - 1;
        for (std::size_t i = 0; i < row.codes.size(); ++i)
            draw.z.einzel_wahl[static_cast<int>(i)] = row.codes[i];
        draw.z.final = row.final;
        draw.z.oktAnz = row.octaves;
        if (row.refused) {
            EXPECT_THROW(draw.wahl.LaufBeginn(), base::RuntimeError);
            continue;
        }
        draw.wahl.LaufBeginn();
        for (int n = 0; n < 50; ++n) draw.wahl.Ziehen(50);
    }
}

TEST(TryingOut, DrawsEvenlyAndACodeEnteredTwiceDoubly) {
    Draw draw;
    draw.choose({1, -2, -2});
    draw.z.oktAnz = 3;
    draw.wahl.LaufBeginn();
    std::map<int, int> drawn;
    for (int n = 0; n < 6000; ++n) {
        draw.wahl.Ziehen(50);
        ++drawn[draw.code()];
    }
    EXPECT_NEAR(drawn[-2], 4000, 150);
    EXPECT_NEAR(drawn[1], 2000, 150);
}

TEST(TryingOut, KeepsToItsDirection) {
    for (const int richtung : {0, 1, 2}) {
        Draw draw;
        draw.z.akt_richtung = -1;
        draw.z.richtung = richtung;
        draw.wahl.LaufBeginn();
        std::set<int> directions;
        for (int n = 0; n < 100; ++n) {
            draw.wahl.Ziehen(50);
            directions.insert(draw.z.akt_richtung);
        }
        EXPECT_EQ(directions, richtung == 0   ? std::set{1}
                              : richtung == 1 ? std::set{-1}
                                              : std::set({-1, 1}));
    }
}

}  // namespace
}  // namespace engine
