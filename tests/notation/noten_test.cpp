#include "notation/noten.h"

#include "notation/farbe.h"
#include "notation/figuren.h"
#include "notation/pixelbild.h"
#include "notation/umriss.h"
#include "support/recording_surface.h"

#include <gtest/gtest.h>

#include <cmath>

namespace notation {
namespace {

using support::RecordingSurface;

constexpr base::Colour black = base::colours::black;

/// What a drawing paints around (20, 20). @param part left, top, width and height from there.
template <class F>
std::string painted(F draw, const Rechteck& part) {
    Pixelbild picture(60, 60);
    draw(picture);
    return picture.zeichnung({20 + part.x, 20 + part.y, part.breite, part.hoehe});
}

TEST(Glyphs, LookAsTheyShould) {
    EXPECT_EQ(
        painted([](Flaeche& f) { NotenkopfMalen(f, 20, 20, farbe::schwarz); }, {-4, -4, 9, 8}),
        "....####.\n"
        "..#######\n"
        ".########\n"
        "#########\n"
        "#########\n"
        "########.\n"
        "#######..\n"
        ".####....\n");
    EXPECT_EQ(painted([](Flaeche& f) { BeMalen(f, 20, 20); }, {0, 9, 7, 14}),
              "#......\n#......\n#......\n"
              "#.###..\n"
              "######.\n"
              "#...###\n"
              "#...###\n"
              "#...##.\n"
              "#...##.\n"
              "#..##..\n"
              "#.#....\n"
              "##.....\n"
              "#......\n"
              ".......\n");
    EXPECT_EQ(painted([](Flaeche& f) { KreuzMalen(f, 20, 20); }, {-1, 0, 6, 12}),
              "....#.\n"
              ".#..#.\n"
              ".#..#.\n"
              ".#..#.\n"
              ".#..#.\n"
              ".#..#.\n"
              ".#..##\n"
              ".#####\n"
              "######\n"
              "#####.\n"
              "##..#.\n"
              ".#..#.\n");
    EXPECT_EQ(painted([](Flaeche& f) { DoppelKreuzMalen(f, 20, 20); }, {0, 0, 8, 8}),
              "###..###\n"
              "###..###\n"
              "###..###\n"
              "...##...\n"
              "...##...\n"
              "###..###\n"
              "###..###\n"
              "###..###\n");
    EXPECT_EQ(painted([](Flaeche& f) { AufloesungMalen(f, 20, 20); }, {0, 4, 5, 9}),
              "#....\n"
              "#....\n"
              "#..##\n"
              "#.###\n"
              "#####\n"
              "###.#\n"
              "##..#\n"
              "#...#\n"
              "#...#\n");
    EXPECT_EQ(
        painted([](Flaeche& f) { OktavMarkeMalen(f, 20, 20, farbe::schwarz); }, {0, 0, 25, 9}),
        ".#####...................\n"
        "##...##..................\n"
        "##...##..................\n"
        "##...##..#.....#...####..\n"
        ".#####...##...##..##..##.\n"
        "##...##...#...#...##..##.\n"
        "##...##...##.##...##..##.\n"
        "##...##....###....##..##.\n"
        ".#####......#......######\n");
}

TEST(Head, LeavesOutItsTopRowInSpacesOfAStaffOnly) {
    struct Row {
        const char* name;
        int y, staff;
        bool whole;
    };
    for (const Row& row :
         {Row{"on a line", 80, 0, true}, Row{"in a space", 84, 0, false},
          Row{"below the staff", 108, 0, false},
          Row{"on a space above the treble staff", 60, 0, true},
          Row{"the same place is inside the bass staff", 60, 1, false},
          Row{"above the bass staff", 44, 1, true}, Row{"on an answer", 84, keineZeile, true}}) {
        SCOPED_TRACE(row.name);
        RecordingSurface surface;
        NotenkopfMalen(surface, 60, row.y, farbe::rot, row.staff);
        EXPECT_EQ(surface.lines.size(), row.whole ? 8U : 7U);
        EXPECT_EQ(surface.lines.back().colour, base::colours::red);
    }
}

TEST(Note, LedgerLinesAndStemFollowItsPlace) {
    struct Row {
        const char* name;
        int s, y;
        std::vector<int> ledgers;
        int stemX, stemEnd;
    };
    for (const Row& row :
         {Row{"middle line: down", 0, 80, {}, 56, 104},
          Row{"one step below: up", 0, 84, {}, 64, 60},
          Row{"middle line of the bass", 1, 64, {}, 56, 88},
          Row{"one step below in the bass", 1, 68, {}, 64, 44},
          Row{"just above the staff", 0, 60, {}, 56, 84},
          Row{"first ledger line above", 0, 56, {56}, 56, 84},
          Row{"the space beyond it", 0, 52, {56}, 56, 80}, Row{"C6", 0, 48, {56, 48}, 56, 80},
          Row{"just below the staff", 0, 100, {}, 64, 76}, Row{"C4", 0, 104, {104}, 64, 76},
          Row{"A3", 0, 112, {104, 112}, 64, 80}, Row{"C4 in the bass", 1, 40, {40}, 56, 68}}) {
        SCOPED_TRACE(row.name);
        RecordingSurface surface;
        i16 counter = 0;
        HilfslinienMalen(surface, 60, row.y, hilfslinieOben(row.s), hilfslinieUnten(row.s),
                         counter);
        HalsMalen(surface, 60, row.y, counter, halsWende(row.s));
        std::vector<RecordingSurface::Line> expected;
        for (const int y : row.ledgers) expected.push_back({54, y, 67, y, black});
        expected.push_back({row.stemX, row.y, row.stemX, row.stemEnd, black});
        EXPECT_EQ(surface.lines, expected);
        EXPECT_EQ(counter, 4 * static_cast<int>(row.ledgers.size()));
    }
}

TEST(Column, IsWipedWiderThanItIsAndKeepsTheLines) {
    Pixelbild picture(160, 145);
    LinienMalen(picture, 160, obersteLinie(0));
    const std::string lines = picture.zeichnung({0, 0, 160, 145});
    picture.fuellen({30, 0, 100, 145}, base::colours::green);
    SpalteLoeschen(picture, obersteLinie(0), 80);
    EXPECT_EQ(picture.zeichnung({55, 0, 51, 145}), [&] {
        std::string rows;
        for (std::size_t y = 0; y < 145; ++y) rows += lines.substr(y * 161 + 55, 51) + '\n';
        return rows;
    }());
    EXPECT_EQ(picture.an(54, 10), base::colours::green);
    EXPECT_EQ(picture.an(106, 10), base::colours::green);
}

TEST(Clefs, KeepTheirPlaces) {
    Pixelbild treble(60, 145), bass(60, 145);
    ViolinschluesselMalen(treble);
    BassschluesselMalen(bass);
    const auto ink = [](const Pixelbild& picture, const Rechteck& part) {
        return std::ranges::count(picture.zeichnung(part), '#');
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
    struct Row {
        const char* name;
        Figur figure;
        std::size_t lines;  ///< outer ones and holes
    };
    for (const Row& row :
         {Row{"head", figuren::kopf, 1}, Row{"flat", figuren::be, 2},
          Row{"sharp", figuren::kreuz, 2}, Row{"natural", figuren::aufloesung, 2},
          Row{"double sharp", figuren::doppelkreuz, 1}, Row{"dots", figuren::punkte, 2}}) {
        SCOPED_TRACE(row.name);
        Pixelbild picture(60, 90);
        picture.figur(row.figure, 20, 20, black);
        const double pixels =
            static_cast<double>(std::ranges::count(picture.zeichnung({0, 0, 60, 90}), '#'));
        const Umriss outline = umriss(row.figure);
        EXPECT_EQ(outline.size(), row.lines);
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
}  // namespace notation
