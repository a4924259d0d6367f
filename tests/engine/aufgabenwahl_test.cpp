#include "engine/aufgabenwahl.h"

#include "engine/draw.h"

#include <gtest/gtest.h>

namespace engine {
namespace {

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
        draw.choose(row.codes);
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

}  // namespace
}  // namespace engine
