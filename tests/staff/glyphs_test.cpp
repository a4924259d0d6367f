#include "staff/glyphs.h"

#include "staff/ink.h"
#include "staff/outline.h"
#include "staff/pixel_grid.h"
#include "staff/shapes.h"
#include "support/recording_surface.h"

#include <gtest/gtest.h>

#include <cmath>

namespace staff {
namespace {

using support::RecordingSurface;

/// From the staff's lines alone: which ledger lines a note has, where its stem goes, and that its
/// head leaves out a row in the spaces of the staff.
TEST(Note, LedgerLinesStemAndHeadFollowItsPlace) {
    for (const int s : {0, 1})
        for (int y = 20; y <= 128; y += 4) {
            SCOPED_TRACE(testing::Message() << s << ' ' << y);
            const int top = s == 0 ? 64 : 48, bottom = top + 32;
            std::vector<RecordingSurface::Line> expected;
            for (int line = top - 8; line >= y; line -= 8)
                expected.push_back({54, line, 67, line, base::colours::black});
            for (int line = bottom + 8; line <= y; line += 8)
                expected.push_back({54, line, 67, line, base::colours::black});
            const int length = 24 + 4 * static_cast<int>(expected.size());
            if (y <= top + 16)
                expected.push_back({56, y, 56, y + length, base::colours::black});
            else
                expected.push_back({64, y, 64, y - length, base::colours::black});
            RecordingSurface surface, head;
            i16 counter = 0;
            HilfslinienMalen(surface, 60, y, ledgerAbove(s), ledgerBelow(s), counter);
            HalsMalen(surface, 60, y, counter, stemTurn(s));
            EXPECT_EQ(surface.lines, expected);
            NotenkopfMalen(head, 60, y, ink::red, s);
            EXPECT_EQ(head.lines.size(), y > top && y % 8 == 4 ? 7U : 8U);
            EXPECT_EQ(head.lines.back().colour, base::colours::red);
        }
}

TEST(Clefs, KeepTheirPlaces) {
    PixelGrid treble(60, 145), bass(60, 145);
    ViolinschluesselMalen(treble);
    BassschluesselMalen(bass);
    const auto ink = [](const PixelGrid& picture, const Rect& part) {
        return std::ranges::count(picture.drawing(part), '#');
    };
    EXPECT_EQ(ink(treble, {13, 49, 18, 62}), ink(treble, {0, 0, 60, 145}));
    EXPECT_GT(ink(treble, {12, 84, 18, 9}), 50) << "curls around the line of G";
    EXPECT_EQ(ink(treble, {15, 103, 5, 5}), 25) << "a solid foot";
    EXPECT_EQ(ink(bass, {7, 47, 24, 26}), ink(bass, {0, 0, 60, 145}));
    EXPECT_EQ(ink(bass, {9, 51, 5, 5}), 25) << "a solid head";
    for (const int dot : {51, 58}) EXPECT_EQ(ink(bass, {26, dot, 5, 4}), 20);
    EXPECT_EQ(ink(bass, {24, 50, 10, 13}), 40) << "nothing but the dots";
}

TEST(Outline, FollowsThePixelsOfEveryFigure) {
    for (const auto& [figure, lines] : {std::pair{Shape(shapes::head), 1},
                                        {Shape(shapes::flat), 2},
                                        {Shape(shapes::sharp), 2},
                                        {Shape(shapes::natural), 2},
                                        {Shape(shapes::doubleSharp), 1},
                                        {Shape(shapes::clefDots), 2}}) {
        PixelGrid picture(60, 90);
        picture.shape(figure, 20, 20, base::colours::black);
        const double pixels =
            static_cast<double>(std::ranges::count(picture.drawing({0, 0, 60, 90}), '#'));
        const Outline outline = staff::outline(figure);
        EXPECT_EQ(int(outline.size()), lines) << "outer ones and holes";
        double area = 0;
        for (const auto& line : outline)
            for (std::size_t i = 0; i < line.size(); ++i) {
                const auto& [x1, y1] = line[i];
                const auto& [x2, y2] = line[(i + 1) % line.size()];
                area += (x1 * y2 - x2 * y1) / 2;
                EXPECT_LT(std::hypot(x2 - x1, y2 - y1), 21.1);
            }
        EXPECT_NEAR(area, pixels, pixels * 0.08);
    }
}

}  // namespace
}  // namespace staff
