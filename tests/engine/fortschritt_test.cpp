#include "engine/fortschritt.h"

#include "core/bench_programm.h"

#include <gtest/gtest.h>

namespace engine {
namespace {

TEST(ZeitStrafe, GrowsByATenthForEveryTwoTenthsOver) {
    for (const auto& [took, penalty] :
         {std::pair{20.0F, 0.0F}, {20.5F, 1.0F}, {21.9F, 1.0F}, {22.0F, 1.1F}, {40.0F, 2.0F}})
        EXPECT_FLOAT_EQ(ZeitStrafeBerechnen(took, 20), penalty) << took;
}

struct FortschrittTest : testing::Test {
    FortschrittTest() {
        z.skal_anz = 6;
        z.uebungsmodus = 1;
        z.ton_anz_akt = 4;
        z.bewertung_basis = 2;
        wertung.vorbereiten();
        matbox.PotSkalaBestimmen();
        matbox.TrainingBeginnen();
        z.skala_nr = 2;
        z.akt_richtung = -1;
    }
    int weight(int code) const {
        for (int i = 1; i <= z.potSkala; ++i)
            if (z.mathaeufgk_box(i, 0) == code) return z.mathaeufgk_box(i, 1);
        return -99;
    }
    core::BenchProgramm bench;
    core::Zustand& z = bench.p.zustand;
    results::Wertung wertung{bench.p};
    Matbox matbox{z, wertung.auswertung, bench.p.rnd};
};

TEST_F(FortschrittTest, WhatATaskBooksAndAddsToItsWeight) {
    struct Row {
        const char* name;
        float punkte;
        int repeats;
        float malus, booked;
        int weight;
    };
    for (const Row& row : {Row{"right at once", -4, 0, 0, -16, 0},
                           {"right, one repetition", -4, 1, 0, -14, 1},
                           {"right, slow and repeated", -4, 1, 1.1F, -11.8F, 2},
                           {"right, half a point left", -4, 0, 3.5F, -9, 4},
                           {"right, more than used up", -4, 9, 0, -8, 4},
                           {"one wrong", 2, 0, 0, -6, 6},
                           {"two wrong, one repetition", 4, 1, 0, -3, 9},
                           {"lost", 8, 0, 0, 0, 12},
                           {"lost, many repetitions", 8, 9, 0, 0, 12}}) {
        SCOPED_TRACE(row.name);
        wertung.auswertung.Clear();
        matbox.TrainingBeginnen();
        z.punkte = row.punkte;
        z.whlgAnz = row.repeats;
        z.zeit_malus = row.malus;
        FortschrittWerten(z, wertung, matbox, 8);
        EXPECT_EQ(wertung.auswertung.read(10, 0), 1) << "slot of the third scale, descending";
        EXPECT_FLOAT_EQ(wertung.auswertung.read(10, 1), row.booked);
        EXPECT_EQ(weight(-3), row.weight);
        EXPECT_EQ(weight(3), 4);
    }
    z.uebungsmodus = 4;
    FortschrittWerten(z, wertung, matbox, 8);
    EXPECT_EQ(weight(-3), 12) << "an exam has no weights";
}

TEST_F(FortschrittTest, TheTrainingEndsAtNothingAndAtTwiceItsBeginning) {
    for (const auto& [each, state, sum] : {std::tuple{0, Trainingsstand::Ziel, 0},
                                           {1, Trainingsstand::Laeuft, 14},
                                           {7, Trainingsstand::Laeuft, 98},
                                           {8, Trainingsstand::Gescheitert, 112}}) {
        matbox.TrainingBeginnen();
        for (int i = 1; i <= z.potSkala; ++i) z.mathaeufgk_box(i, 1) = each;
        EXPECT_EQ(TrainingFortschreiben(z, matbox), state) << each;
        EXPECT_EQ(z.matbox_zahl, sum) << each;
    }
}

}  // namespace
}  // namespace engine
