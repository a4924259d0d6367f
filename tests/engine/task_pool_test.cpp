#include "engine/task_pool.h"

#include "base/runtime_error.h"
#include "engine/bare_run.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

namespace engine {
namespace {

using core::modus::pruefung;
using core::modus::training;

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
        BareRun bare;
        if (!row.chosen.empty()) bare.choose(row.chosen);
        bare.z.richtung = row.richtung;
        const TaskPool& box = bare.begin(training).pool();
        const auto codes = bare.codes();
        std::map<int, int> expected;
        for (const int code : codes) expected[code] = row.weight;
        EXPECT_EQ(bare.pool(), expected);
        EXPECT_EQ(box.matbox_zahl(), row.weight * static_cast<int>(codes.size()));
        EXPECT_EQ(box.percent(), 50) << "the bar begins at half";
    }
    EXPECT_THROW(TaskPool::startWeight(0), base::RuntimeError) << "no scales at all";
}

/// Over weights that a training can reach: the pool holds each scale as often as its weight, raised
/// for all when one has fallen below one, and is left alone outside its limits.
TEST(MatNeu, TheRebuiltPoolHoldsEveryScale) {
    int rebuilt = 0, shifted = 0, left = 0;
    for (int seed = 0; seed < 600; ++seed) {
        SCOPED_TRACE(seed);
        BareRun bare(hearing, seed);
        TaskPool box = bare.begin(training).pool();
        const auto pool = [&] {
            std::map<int, int> count;
            for (int i = 1; i <= box.matboxanz(); ++i) ++count[box.code(i)];
            return count;
        };
        const auto before = pool();
        const int n = box.potSkala(), highest = std::array{20, 7, 7, 7, 0}[std::size_t(seed % 5)];
        auto& weights = bare.z.mathaeufgk_box;
        std::map<int, int> weight;
        for (int i = 1; i <= n; ++i)
            weight[weights(i, 0)] = weights(i, 1) = bare.rnd.below(highest + 9) - 8;
        box.MatNeu();

        int positive = 0, lowest = 99;
        for (const auto& [code, w] : weight) {
            positive += std::max(0, w);
            lowest = std::min(lowest, w);
        }
        ASSERT_EQ(box.matbox_zahl(), positive);
        for (int i = 1; i <= n; ++i) {
            ASSERT_EQ(weights(i, 1), weight.at(weights(i, 0)));
            if (i > 1) {
                ASSERT_LE(weights(i, 1), weights(i - 1, 1));
            }
        }
        if (positive >= n * 8 - 1 || positive == 0) {
            ASSERT_EQ(pool(), before);
            ++left;
            continue;
        }
        const int shift = lowest < 1 ? 1 - lowest : 0;
        const auto rebuiltPool = pool();
        for (const auto& [code, w] : weight) ASSERT_EQ(rebuiltPool.at(code), w + shift) << code;
        ASSERT_EQ(rebuiltPool.size(), weight.size()) << "no empty row";
        ASSERT_EQ(box.code(1), weights(1, 0)) << "the heaviest in front";
        ++rebuilt;
        shifted += shift > 0 ? 1 : 0;
    }
    EXPECT_GT(rebuilt, 100);
    EXPECT_GT(shifted, 100);
    EXPECT_GT(left, 20);
}

/// A heavy scale among others of which nothing is left: the bar shows its weight alone.
TEST(Training, OnlyNearTheGoalTheFrontOfThePoolIsPreferred) {
    for (const auto& [weight, flood] : {std::pair{56, 50}, {22, 20}, {21, 19}, {1, 1}}) {
        BareRun bare;
        TaskPool box = bare.begin(training).pool();
        for (int i = 1; i <= box.potSkala(); ++i)
            bare.z.mathaeufgk_box(i, 1) = i == 1 ? weight : -50;
        box.MatNeu();
        ASSERT_EQ(box.percent(), flood);
        const int rows = box.matboxanz(), half = rows / 2;
        int front = 0;
        constexpr int draws = 20000;
        for (int n = 0; n < draws; ++n) {
            Task a;
            const int row = box.draw(true, a);
            ASSERT_GE(row, 1);
            ASSERT_LE(row, rows);
            front += row <= half ? 1 : 0;
        }
        // With x = 50 - flood, (2x - 19)% of the draws fall into the first (100 - x)% of the rows.
        const int x = 50 - flood;
        const double evenly = static_cast<double>(half) / rows;
        const double preferred = x > 30 ? (2 * x - 19) / 100.0 : 0;
        EXPECT_NEAR(static_cast<double>(front) / draws,
                    (1 - preferred) * evenly + preferred * evenly * 100 / (100 - x), 0.015);
    }
}

/// A bag holds every code of the run once and legal ones besides, and is drawn empty.
TEST(Bag, EveryCodeComesInEachHalfOfAnExam) {
    for (int seed = 0; seed < 30; ++seed)
        for (const bool chosen : {false, true}) {
            SCOPED_TRACE(seed);
            BareRun bare(hearing, seed);
            if (chosen) bare.choose({1, -1, 4, -6, 7});
            bare.z.richtung = seed % 3;
            engine::Run& run = bare.begin(pruefung);
            const auto codes = bare.codes();
            const int half = run.standing().pruefAufgaben / 2;
            for (int which = 0; which < 2; ++which) {
                const auto bag = bare.pool();
                EXPECT_EQ(bag.size(), codes.size());
                for (const int code : codes) EXPECT_TRUE(bag.contains(code)) << code;
                std::map<int, int> drawn;
                for (int n = 0; n < half; ++n) {
                    run.draw();
                    ++drawn[bare.code()];
                    const auto left = bare.pool();
                    EXPECT_EQ(left.contains(0) ? left.at(0) : 0, n + 1);
                    bare.answer(true);
                }
                EXPECT_EQ(drawn, bag) << "all used up";
            }
            EXPECT_TRUE(run.ended());
        }
}

/// No scale comes twice in a key while there are others, and the second half evens out the first.
TEST(Bag, OfAWrittenExamHasTheKeysToo) {
    for (int seed = 0; seed < 20; ++seed) {
        SCOPED_TRACE(seed);
        BareRun bare(writing, seed);
        engine::Run& run = bare.begin(pruefung);
        const int tasks = run.standing().pruefAufgaben;
        std::map<int, std::set<int>> keys;
        int signs = 0;
        for (int n = 0; n < tasks; ++n) {
            for (int i = 1; n % (tasks / 2) == 0 && i <= run.pool().matboxanz(); ++i) {
                const int key = run.pool().tonality(i);
                signs += std::abs(key);
                EXPECT_TRUE(key != 0 && std::abs(key) <= 6) << key;
                auto& before = keys[std::abs(int(run.pool().code(i)))];
                EXPECT_TRUE(before.insert(key).second || before.size() == 12) << key;
            }
            bare.task(true);
        }
        EXPECT_NEAR(signs / double(tasks), 3, 0.25);
        for (int slot = 1; slot <= 7; ++slot) {
            const auto row = results::ergebnisZeile(bare.wertung.auswertung, bare.z, slot);
            EXPECT_TRUE(row.zaehlt && row.anteil > 0.9F) << "its best count";
        }
    }
}

}  // namespace
}  // namespace engine
