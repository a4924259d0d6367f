#include "engine/matbox.h"

#include "base/runtime_error.h"
#include "engine/draw.h"

#include <gtest/gtest.h>

namespace engine {
namespace {

void begin(Draw& draw, int uebungsmodus, int richtung) {
    draw.z.uebungsmodus = uebungsmodus;
    draw.z.richtung = richtung;
    draw.wahl.LaufBeginn();
}

TEST(Training, BeginsWithEveryCodeEquallyOften) {
    struct Row {
        const char* name;
        int richtung;
        std::vector<int> chosen;
        int weight;
    };
    for (const Row& row : {Row{"seven descending", 1, {}, 4},
                           {"one", 2, {-3}, 30},
                           {"four", 0, {1, 2, 3, 5}, 7},
                           {"eight", 2, {1, 2, 3, 5, -1, -2, -3, -5}, 4}}) {
        SCOPED_TRACE(row.name);
        Draw draw;
        if (!row.chosen.empty()) draw.choose(row.chosen);
        begin(draw, 1, row.richtung);
        draw.box.TrainingBeginnen();
        const auto codes = draw.codes();
        std::map<int, int> expected;
        for (const int code : codes) expected[code] = row.weight;
        EXPECT_EQ(draw.pool(), expected);
        EXPECT_EQ(draw.z.matbox_zahl, row.weight * static_cast<int>(codes.size()));
        EXPECT_EQ(draw.box.obergrenze(), 2 * draw.z.matbox_zahl) << "the bar begins at half";
    }
    EXPECT_THROW(Matbox::startgewicht(0), base::RuntimeError) << "no scales at all";
}

/// Over weights that a training can reach: the pool holds each scale as often as its weight, raised
/// for all when one has fallen below one, and is left alone outside its limits.
TEST(MatNeu, TheRebuiltPoolHoldsEveryScale) {
    int rebuilt = 0, shifted = 0, left = 0;
    for (int seed = 0; seed < 600; ++seed) {
        SCOPED_TRACE(seed);
        Draw draw(seed);
        begin(draw, 1, 2);
        draw.box.TrainingBeginnen();
        const auto before = draw.pool();
        const int n = draw.z.potSkala, highest = std::array{20, 7, 7, 7, 0}[std::size_t(seed % 5)];
        std::map<int, int> weight;
        for (int i = 1; i <= n; ++i)
            weight[draw.z.mathaeufgk_box(i, 0)] = draw.z.mathaeufgk_box(i, 1) =
                draw.rnd.below(highest + 9) - 8;
        draw.box.MatNeu();

        int positive = 0, lowest = 99;
        for (const auto& [code, w] : weight) {
            positive += std::max(0, w);
            lowest = std::min(lowest, w);
        }
        ASSERT_EQ(draw.z.matbox_zahl, positive);
        for (int i = 1; i <= n; ++i) {
            ASSERT_EQ(draw.z.mathaeufgk_box(i, 1), weight.at(draw.z.mathaeufgk_box(i, 0)));
            if (i > 1) {
                ASSERT_LE(draw.z.mathaeufgk_box(i, 1), draw.z.mathaeufgk_box(i - 1, 1));
            }
        }
        if (positive >= n * 8 - 1 || positive == 0) {
            ASSERT_EQ(draw.pool(), before);
            ++left;
            continue;
        }
        const int shift = lowest < 1 ? 1 - lowest : 0;
        const auto pool = draw.pool();
        for (const auto& [code, w] : weight) ASSERT_EQ(pool.at(code), w + shift) << code;
        ASSERT_EQ(pool.size(), weight.size()) << "no empty row";
        ASSERT_EQ(draw.z.matbox(1, 0), draw.z.mathaeufgk_box(1, 0)) << "the heaviest in front";
        ++rebuilt;
        shifted += shift > 0 ? 1 : 0;
    }
    EXPECT_GT(rebuilt, 100);
    EXPECT_GT(shifted, 100);
    EXPECT_GT(left, 20);
}

TEST(Training, OnlyNearTheGoalTheFrontOfThePoolIsPreferred) {
    for (const auto& [flood, share] : {std::pair{100, 0.5}, {20, 0.5}, {19, 0.597}, {0, 0.905}}) {
        Draw draw(flood);
        begin(draw, 1, 2);
        draw.box.TrainingBeginnen();
        int front = 0;
        constexpr int draws = 20000;
        for (int n = 0; n < draws; ++n) {
            const int row = draw.box.Ziehen(true, flood);
            ASSERT_GE(row, 1);
            ASSERT_LE(row, draw.z.matboxanz);
            front += row <= draw.z.matboxanz / 2 ? 1 : 0;
        }
        // With x = 50 - flood, (2x - 19)% of the draws fall into the first (100 - x)% of the rows.
        EXPECT_NEAR(static_cast<double>(front) / draws, share, 0.015) << flood;
    }
}

/// A bag holds every code of the run once and legal ones besides, and is drawn empty.
TEST(Bag, EveryCodeComesInEachHalfOfAnExam) {
    for (int seed = 0; seed < 30; ++seed)
        for (const bool chosen : {false, true}) {
            SCOPED_TRACE(seed);
            Draw draw(seed);
            if (chosen) draw.choose({1, -1, 4, -6, 7});
            begin(draw, 4, seed % 3);
            const auto codes = draw.codes();
            const int half = 2 * draw.z.potSkala + seed % 4;
            draw.box.PruefungBeginnen(half);
            for (int which = 0; which < 2; ++which) {
                const auto bag = draw.pool();
                EXPECT_EQ(bag.size(), codes.size());
                for (const int code : codes) EXPECT_TRUE(bag.contains(code)) << code;
                for (int i = 1; i <= draw.z.potSkala; ++i)
                    EXPECT_EQ(std::ranges::count(codes, int(draw.z.matbox(i, 0))), 1);
                std::map<int, int> drawn;
                for (int n = 0; n < half; ++n) {
                    draw.wahl.Ziehen(0);
                    ++drawn[draw.code()];
                }
                EXPECT_EQ(drawn, bag);
                EXPECT_EQ(draw.pool(), (std::map<int, int>{{0, half}})) << "all used up";
                const int before = draw.code();
                draw.box.MatFuellen(draw.z.richtung);
                EXPECT_EQ(draw.code(), before) << "filling does not touch the task in hand";
            }
        }
}

}  // namespace
}  // namespace engine
