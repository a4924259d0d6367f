#include "results/wertung.h"

#include "base/rnd.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace results {
namespace {

using core::modus::test;

/// What a slot reached, from all that was booked for it: a right first answer books `best`.
float share(const core::Zustand& z, std::vector<float> booked, float best) {
    std::size_t counted = booked.size();
    if (z.uebungsmodus >= test) {
        // The best count, in a named test always two; what is missing or above nothing is nothing.
        counted = z.ueb_typ == 1 ? 2 : std::min<std::size_t>(counted, int(z.bestAnz));
        std::ranges::sort(booked);
        booked.resize(counted);
        for (float& one : booked) one = std::min(one, 0.0F);
    }
    const float sum = std::accumulate(booked.begin(), booked.end(), 0.0F);
    return std::min(sum, 0.0F) / (best * static_cast<float>(counted));
}

TEST(Wertung, TheShareIsThatOfAnotherCalculation) {
    core::Zustand z;
    Wertung wertung{z};
    base::Rnd chance(5);
    for (int run = 0; run < 2000; ++run) {
        z.uebungsmodus = chance.below(5);
        z.ueb_typ = chance.below(2) == 0 ? 1 : 4;
        z.bestAnz = 3 + chance.below(2);
        z.bewertung_basis = static_cast<float>(int(chance.below(3)));
        wertung.vorbereiten();
        const int slot = 1 + chance.below(20);
        const bool named = z.uebungsmodus >= test && z.ueb_typ == 1;
        const bool there = chance.below(5) > 0;  // a named test marks the scales of its run
        if (named && there) wertung.auswertung.Save(slot, 3, 1);
        std::vector<float> booked;
        for (int tasks = chance.below(7); tasks > 0; --tasks) {
            const auto points = static_cast<float>(int(chance.below(30)) - 4);
            wertung.ErgebnisBuchen(slot, points);
            booked.push_back(points - 4 * z.bewertung_basis);
        }
        SCOPED_TRACE(testing::Message() << "mode " << int(z.uebungsmodus) << " type "
                                        << int(z.ueb_typ) << " " << testing::PrintToString(booked));
        const ErgebnisZeile row = ergebnisZeile(wertung.auswertung, z, slot);
        ASSERT_EQ(row.zaehlt,
                  (named ? there : !booked.empty()) && z.uebungsmodus > 0 && z.bewertung_basis > 0);
        if (row.zaehlt) {
            ASSERT_FLOAT_EQ(row.anteil, share(z, booked, -8 * z.bewertung_basis));
        }
        EXPECT_FALSE(ergebnisZeile(wertung.auswertung, z, slot % 20 + 1).zaehlt);
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
