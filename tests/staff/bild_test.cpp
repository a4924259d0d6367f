#include "staff/bild.h"

#include "core/katalog.h"
#include "staff/tonhoehe.h"
#include "support/recording_surface.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

namespace staff {
namespace {

namespace katalog = core::katalog;

/// Every scale in both columns of its category, with the number of its picture.
template <class F>
void everyPicture(F f) {
    for (int typ = 0; typ < katalog::kategorienAnz; ++typ) {
        const auto& category = katalog::kategorie(typ);
        for (std::size_t column = 0; column < 2; ++column)
            for (int nr = 0; nr <= category.skal_max; ++nr) {
                SCOPED_TRACE(testing::Message() << typ << ' ' << nr << " column " << column);
                f(typ, nr, column == 0, category.bild_basis[column] + nr);
            }
    }
}

TEST(Picture, ShowsTheScaleOfItsNumberAsItSoundsInProperSpelling) {
    everyPicture([](int typ, int nr, bool sameFinal, int number) {
        Bild bild{};
        ASSERT_TRUE(bildVon(number, bild));
        EXPECT_EQ(bild.skal_typ, typ);
        EXPECT_EQ(bild.skala_nr, nr);
        const auto toene = bildToene(bild);
        const std::size_t anzahl = toene.size();
        ASSERT_EQ(int(anzahl), katalog::kategorie(typ).tonAnz);
        std::multiset<int> letters;
        for (std::size_t i = 0; i < anzahl; ++i) {
            EXPECT_EQ(toene[i].midi - toene[0].midi, core::katalog::leiter(typ, nr)[i]);
            EXPECT_EQ(tonklasse(toene[i].qz), toene[i].midi % 12) << "the spelling sounds so";
            EXPECT_LE(std::abs(vorzeichen(toene[i].qz)), anzahl == 4 ? 2 : 1);
            if (i + 1 < anzahl) letters.insert(stammton(toene[i].qz));
            if (i > 0) {
                EXPECT_LE(YAusTon(toene[i], 0).y, YAusTon(toene[i - 1], 0).y)
                    << "the line does not fall";
            }
        }
        if (anzahl == 8) {
            EXPECT_EQ(letters, (std::multiset{0, 1, 2, 3, 4, 5, 6}));
            EXPECT_EQ(toene[0].qz, toene[7].qz);
        }
        if (anzahl == 4) {
            EXPECT_EQ(std::set(letters.begin(), letters.end()).size(), 3U);
        }
        if (sameFinal || !katalog::rotiert(typ)) {
            EXPECT_EQ(toene[0], (Ton{60, QzMitte})) << "on C";
        }
    });
}

TEST(Picture, IsDrawnWithinItsSizeAndNoTwoAnswersLookAlike) {
    using Lines = std::vector<support::RecordingSurface::Line>;
    std::map<std::pair<int, bool>, std::vector<Lines>> drawn;
    everyPicture([&](int typ, int, bool sameFinal, int number) {
        support::RecordingSurface surface;
        BildMalen(surface, number);
        ASSERT_GT(surface.lines.size(), 5U);
        for (const auto& line : surface.lines)
            for (const auto& [x, y] : {std::pair{line.x1, line.y1}, {line.x2, line.y2}}) {
                ASSERT_GE(x, 0);
                ASSERT_LE(x, bildBreite);
                ASSERT_GE(y, 0);
                ASSERT_LE(y, bildHoehe);
            }
        auto& before = drawn[{typ, sameFinal}];
        EXPECT_EQ(std::ranges::count(before, surface.lines), 0);
        before.push_back(surface.lines);
    });
}

}  // namespace
}  // namespace staff
