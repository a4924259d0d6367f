#include "staff/scale_picture.h"

#include "core/katalog.h"
#include "staff/position.h"
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
        ScalePicture picture{};
        ASSERT_TRUE(findPicture(number, picture));
        EXPECT_EQ(picture.skal_typ, typ);
        EXPECT_EQ(picture.skala_nr, nr);
        const auto pitches = picturePitches(picture);
        const std::size_t anzahl = pitches.size();
        ASSERT_EQ(int(anzahl), katalog::kategorie(typ).tonAnz);
        std::multiset<int> letters;
        for (std::size_t i = 0; i < anzahl; ++i) {
            EXPECT_EQ(pitches[i].midi - pitches[0].midi, core::katalog::scaleTones(typ, nr)[i]);
            EXPECT_EQ(pitchClass(pitches[i].qz), pitches[i].midi % 12) << "the spelling sounds so";
            EXPECT_LE(std::abs(accidental(pitches[i].qz)), anzahl == 4 ? 2 : 1);
            if (i + 1 < anzahl) letters.insert(letter(pitches[i].qz));
            if (i > 0) {
                EXPECT_LE(YAusTon(pitches[i], 0).y, YAusTon(pitches[i - 1], 0).y)
                    << "the line does not fall";
            }
        }
        if (anzahl == 8) {
            EXPECT_EQ(letters, (std::multiset{0, 1, 2, 3, 4, 5, 6}));
            EXPECT_EQ(pitches[0].qz, pitches[7].qz);
        }
        if (anzahl == 4) {
            EXPECT_EQ(std::set(letters.begin(), letters.end()).size(), 3U);
        }
        if (sameFinal || !katalog::rotiert(typ)) {
            EXPECT_EQ(pitches[0], (Pitch{60, QzMitte})) << "on C";
        }
    });
}

TEST(Picture, IsDrawnWithinItsSizeAndNoTwoAnswersLookAlike) {
    using Lines = std::vector<support::RecordingSurface::Line>;
    std::map<std::pair<int, bool>, std::vector<Lines>> drawn;
    everyPicture([&](int typ, int, bool sameFinal, int number) {
        support::RecordingSurface surface;
        paintPicture(surface, number);
        ASSERT_GT(surface.lines.size(), 5U);
        for (const auto& line : surface.lines)
            for (const auto& [x, y] : {std::pair{line.x1, line.y1}, {line.x2, line.y2}}) {
                ASSERT_GE(x, 0);
                ASSERT_LE(x, pictureWidth);
                ASSERT_GE(y, 0);
                ASSERT_LE(y, pictureHeight);
            }
        auto& before = drawn[{typ, sameFinal}];
        EXPECT_EQ(std::ranges::count(before, surface.lines), 0);
        before.push_back(surface.lines);
    });
}

}  // namespace
}  // namespace staff
