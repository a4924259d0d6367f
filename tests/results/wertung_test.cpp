#include "results/wertung.h"

#include "core/bench_programm.h"

#include <gtest/gtest.h>

namespace results {
namespace {

/// A run whose tasks allow four wrong answers: a right first answer books -16.
struct WertungTest : testing::Test {
    WertungTest() {
        bench.p.zustand.bewertung_basis = 2;
        bench.p.zustand.bestAnz = 4;
        wertung.vorbereiten();
    }
    core::BenchProgramm bench;
    core::Zustand& z = bench.p.zustand;
    Wertung wertung{bench.p};
};

TEST_F(WertungTest, BooksByModeAndExerciseType) {
    struct Row {
        const char* name;
        int modus, typ;
        std::array<float, 4> columns;
    };
    for (const Row& row : {Row{"trying out books nothing", 0, 1, {0, 0, 0, 0}},
                           {"resumed training: count and sum", 2, 4, {2, -24, 0, 0}},
                           {"test, determine: the best two", 3, 1, {-8, -16, 0, 0}},
                           {"exam, determine", 4, 1, {-8, -16, 0, 0}},
                           {"exam, write: counted, and the best four", 4, 4, {2, 0, -8, -16}}}) {
        SCOPED_TRACE(row.name);
        wertung.auswertung.Clear();
        z.uebungsmodus = row.modus;
        z.ueb_typ = row.typ;
        wertung.ErgebnisBuchen(3, -8);
        wertung.ErgebnisBuchen(3, 0);
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(wertung.auswertung.read(3, x), row.columns[static_cast<std::size_t>(x)]) << x;
    }
}

TEST_F(WertungTest, SharesOfARow) {
    struct Row {
        const char* name;
        int modus, typ;
        std::array<float, 6> columns;
        bool counts;
        float share;
    };
    for (const Row& row :
         {Row{"training, all right at once", 1, 1, {3, -48}, true, 1},
          {"training, worse than nothing", 1, 1, {1, 6}, true, 0},
          {"training, no task", 1, 1, {0, 0}, false, 0},
          {"test, two right answers", 3, 1, {-16, -16, 0, 1}, true, 1},
          {"test, one task only", 3, 1, {0, -16, 0, 1}, true, 0.5F},
          {"test, nothing reached", 4, 1, {0, 0, 0, 2}, true, 0},
          {"test, a scale that was not in the run", 4, 1, {-16, -16, 0, 0}, false, 0},
          {"write, one of four", 4, 4, {1, 0, -12, 0, 0, 0}, true, 0.75F},
          {"write, more tasks than are kept", 4, 4, {9, 0, -8, -16, -16, -16}, true, 0.875F},
          {"write, no task", 4, 4, {0, 0}, false, 0}}) {
        SCOPED_TRACE(row.name);
        z.uebungsmodus = row.modus;
        z.ueb_typ = row.typ;
        for (int x = 0; x < 6; ++x)
            wertung.auswertung.Save(5, x, row.columns[static_cast<std::size_t>(x)]);
        const ErgebnisZeile zeile = ergebnisZeile(wertung.auswertung, z, 5);
        EXPECT_EQ(zeile.zaehlt, row.counts);
        EXPECT_FLOAT_EQ(zeile.anteil, row.share);
        z.bewertung_basis = 0;
        EXPECT_FALSE(ergebnisZeile(wertung.auswertung, z, 5).zaehlt) << "nothing to be reached";
        z.bewertung_basis = 2;
    }
}

TEST(ProzentText, HasOneDigitBehindAPoint) {
    for (const auto& [anteil, text] : {std::pair{0.875F, "87.5%"},
                                       {-0.0001F, "0.0%"},
                                       {2.0F / 3, "66.7%"},
                                       {-0.25F, "-25.0%"},
                                       {0.9999F, "100.0%"}})
        EXPECT_EQ(prozentText(anteil), text) << anteil;
}

}  // namespace
}  // namespace results
