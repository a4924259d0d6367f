#include "results/auswertung.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace results {
namespace {

Auswertung table() {
    Auswertung a;
    a.init_arr(20, 6);
    return a;
}

TEST(SaveBest, KeepsTheTwoLowestWithTheLowestInColumnOne) {
    struct Row {
        const char* name;
        std::vector<float> booked;
        float second, lowest;
    };
    for (const Row& row : {Row{"one", {-16}, 0, -16},
                           {"the same twice", {-16, -16}, -16, -16},
                           {"better and better", {-4, -8, -16}, -8, -16},
                           {"worse and worse", {-16, -8, -4}, -8, -16},
                           {"nothing below zero", {3, 0}, 0, 0},
                           {"one good among bad", {5, -2, 8}, 0, -2}}) {
        SCOPED_TRACE(row.name);
        Auswertung a = table();
        for (const float value : row.booked) a.SaveBest(7, value);
        EXPECT_EQ(a.read(7, 0), row.second);
        EXPECT_EQ(a.read(7, 1), row.lowest);
        EXPECT_EQ(a.read(6, 1), 0);
    }
}

/// Column 0 says beforehand how often the scale comes; unused places are zeros, in front.
TEST(SortASaveBest, KeepsTheLowestValuesSortedFromTheHighest) {
    std::mt19937 chance(5);
    for (const auto& [present, bestAnz] : {std::pair{9, 3}, {9, 4}, {2, 4}, {4, 4}, {1, 3}}) {
        Auswertung a = table();
        a.Save(2, 0, static_cast<float>(present));
        const std::size_t places = static_cast<std::size_t>(std::min(present, bestAnz));
        std::vector<float> best(places, 0.0F);
        for (int n = 1; n <= 12; ++n) {
            const float value = 5 - static_cast<float>(chance() % 50);
            a.SortASaveBest(2, value, bestAnz);
            best.push_back(value);
            std::ranges::sort(best);
            best.resize(places);
            for (std::size_t i = 0; i < places; ++i)
                ASSERT_EQ(a.read(2, static_cast<int>(i) + 2), best[places - 1 - i])
                    << present << ' ' << bestAnz << ' ' << n;
            EXPECT_EQ(a.read(2, static_cast<int>(places) + 2), 0);
        }
    }
}

TEST(Auswertung, HasTheRowsOfEveryCategoryAndNoMore) {
    Auswertung a = table();
    a.Increment(20, 6);
    a.Add(20, 6, 1.5F);
    EXPECT_EQ(a.read(20, 6), 2.5F);
    EXPECT_THROW(a.read(21, 0), base::RuntimeError);
    EXPECT_THROW(a.SaveBest(-1, 0), base::RuntimeError);
    a.Clear();
    EXPECT_EQ(a.read(20, 6), 0);
}

TEST(Ergebnis, KeepsTheHighestAndItsFirstEntry) {
    ergebnis e;
    e.init_arr(3);
    e.SaveBest(0, 9);
    e.SaveBest(3, 5);
    e.SaveBest(3, 4);
    e.SaveBest(2, -1);
    EXPECT_EQ(e.read(3), 5);
    EXPECT_EQ(e.read(2), 0);
    e.Clear();
    EXPECT_EQ(e.read(0), 9);
    EXPECT_EQ(e.read(3), 0);
    EXPECT_THROW(e.read(4), base::RuntimeError);
}

}  // namespace
}  // namespace results
