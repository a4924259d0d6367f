#include "notation/notenzeile.h"

#include "notation/farbe.h"
#include "notation/pixelbild.h"
#include "sheet.h"
#include "support/recording_surface.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace notation {
namespace {

using support::RecordingSurface;

RecordingSurface shown(const Blatt& surface) {
    RecordingSurface recorder;
    surface.zeigen(recorder);
    return recorder;
}

std::string picture(const Blatt& surface, const Rechteck& part) {
    Pixelbild pixels(surface.lage().breite, surface.lage().hoehe);
    surface.zeigen(pixels);
    return pixels.zeichnung(part);
}

TEST(Layout, GivesEveryTaskCleanLinesAndItsClef) {
    for (const auto& [base, s] : {std::pair{60, 0}, {36, 1}}) {
        SCOPED_TRACE(s ? "bass" : "treble");
        const Sheet sheet(1, 0, base);
        EXPECT_EQ(sheet.staff.SchlZ(), s);
        EXPECT_EQ(sheet.staff.PicB(s).visible(), true);
        EXPECT_EQ(sheet.staff.PicB(1 - s).visible(), false);
        EXPECT_EQ(sheet.staff.PicBNot.lage(), (Rechteck{0, 0, 362, 158}));
        EXPECT_EQ(sheet.staff.PicB(s).lage(), (Rechteck{0, s ? 0 : 12, 362, 144}));
        const auto lines = shown(sheet.staff.PicB(s)).lines;
        for (int i = 0; i < 5; ++i) {
            const int y = (s ? 48 : 64) + 8 * i;
            EXPECT_EQ(lines[static_cast<std::size_t>(i)],
                      (RecordingSurface::Line{0, y, 362, y, base::colours::black}));
        }
        EXPECT_EQ(shown(sheet.staff.PicB(s)).curves.size(), 1U);
        const auto digits = shown(sheet.staff.PicBNot).texts;
        EXPECT_EQ(digits.size(), 12U);
        EXPECT_EQ(digits.front(), (RecordingSurface::Text{85, 0, "1"}));
        EXPECT_EQ(digits.back(), (RecordingSurface::Text{285, 144, "6"}));
    }
}

TEST(Layout, AKeySignatureMovesTheColumns) {
    struct Row {
        const char* name;
        int base, signature, glyphs, firstX, firstY;
    };
    for (const Row& row :
         {Row{"none", 60, 0, 0, 0, 0}, Row{"one sharp", 60, 1, 1, 36, 53},
          Row{"seven sharps", 60, 7, 7, 36, 53}, Row{"one flat", 60, -1, 1, 36, 64},
          Row{"two sharps in the bass", 36, 2, 2, 36, 45}}) {
        SCOPED_TRACE(row.name);
        Sheet sheet(0, 0, row.base, row.signature);
        const int by = 10 * row.glyphs;
        EXPECT_EQ(sheet.staff.PicBNot.lage().breite, 362 + by);
        EXPECT_EQ(sheet.staff.lage().x(3), 180 + by);
        EXPECT_EQ(sheet.staff.lage().spalteBei(static_cast<float>(180 + by)), 3);
        const Blatt& surface = sheet.staff.PicB(sheet.staff.SchlZ());
        const auto lines = shown(surface).lines;
        const auto stems = std::ranges::count_if(
            lines, [](const auto& l) { return l.x1 == l.x2 && std::abs(l.y1 - l.y2) >= 21; });
        EXPECT_EQ(stems, row.signature > 0 ? 2 * row.glyphs : row.glyphs);
        if (row.glyphs > 0) {
            EXPECT_TRUE(std::ranges::any_of(lines, [&](const auto& l) {
                return l.x1 == row.firstX && l.x2 == l.x1 && l.y1 == row.firstY;
            }));
        }
    }
}

TEST(Limits, AreDottedGreenAndMendedAroundAColumn) {
    Sheet sheet(0, 0, 60);
    const Grenze& limits = sheet.staff.grenze(0);
    sheet.staff.GrenzLinienMalen();
    sheet.staff.GrenzStueckMalen(sheet.staff.lage().x(2), farbe::gruen);
    const auto lines = shown(sheet.staff.PicB(0)).lines;
    const base::Colour green = base::rgb(0, 128, 0);
    const std::vector<RecordingSurface::Line> expected{
        {80, limits.oben, 322, limits.oben, green, true},
        {80, limits.unten, 322, limits.unten, green, true},
        {120, limits.oben, 160, limits.oben, green, true},
        {120, limits.unten, 160, limits.unten, green, true}};
    EXPECT_EQ(std::vector(lines.end() - 4, lines.end()), expected);
    const std::string row = picture(sheet.staff.PicB(0), {80, limits.oben, 242, 1});
    EXPECT_EQ(row.substr(0, 8), "++..++..");
}

TEST(Note, SignsStandAtTheirAnchors) {
    struct Row {
        const char* name;
        Ton note;
        int stems;  ///< of the sign
        int x, y;   ///< of its first stroke
    };
    for (const Row& row : {Row{"flat", {70, qzVon(6, -1)}, 1, 125, 64},
                           Row{"double flat", {69, qzVon(6, -2)}, 2, 118, 64},
                           Row{"sharp", {72, qzVon(6, 1)}, 2, 126, 69},
                           Row{"double sharp", {73, qzVon(6, 2)}, 0, 126, 76},
                           Row{"natural", {71, qzVon(6, 0)}, 0, 0, 0}}) {
        SCOPED_TRACE(row.name);
        Sheet sheet(0, 0, 60);
        sheet.staff.NoteSetzen(2, row.note, farbe::rot);
        const auto lines = shown(sheet.staff.PicB(0)).lines;
        const auto red = std::ranges::count_if(
            lines, [](const auto& l) { return l.colour == base::colours::red; });
        EXPECT_EQ(red, 8) << "the head alone";
        EXPECT_TRUE(row.x == 0 || std::ranges::any_of(lines, [&](const auto& l) {
                        return l.x1 == row.x && l.y1 == row.y;
                    }));
        EXPECT_EQ(std::ranges::count_if(
                      lines, [](const auto& l) { return l.x1 < 135 && l.y2 - l.y1 >= 21; }),
                  row.stems);
    }
}

TEST(Note, ShowsItsSignUnlessAnEarlierOneHolds) {
    const Ton fis{66, qzVon(3, 1)}, f{65, qzVon(3, 0)}, fisHigh{78, qzVon(3, 1)},
        ges{66, qzVon(4, -1)};
    struct Row {
        const char* name;
        std::vector<Ton> before;
        Ton note;
        int code;
    };
    for (const Row& row :
         {Row{"first", {}, fis, 8}, Row{"the same again", {fis}, fis, 10},
          Row{"natural after a sharp shows nothing", {fis}, f, 7},
          Row{"sharp, natural, sharp", {fis, f}, fis, 8},
          Row{"an octave higher", {fis}, fisHigh, 8},
          Row{"another line between", {fis, ges}, fis, 10}, Row{"flat", {f}, ges, 6}}) {
        SCOPED_TRACE(row.name);
        Sheet sheet(0, 0, 60);
        int c = 0;
        for (const Ton& note : row.before) sheet.staff.NoteSetzen(c++, note, farbe::schwarz);
        sheet.staff.NoteSetzen(c, row.note, farbe::schwarz);
        EXPECT_EQ(sheet.staff.NotSelb(c).zeichen, row.code);
    }
}

TEST(Surface, ForgetsWhatIsWipedAndKeepsWhatIsSeen) {
    Sheet sheet(6, 0, 60);
    NotenZeigen(sheet.staff, sheet.task);
    Blatt& surface = sheet.staff.PicB(0);
    const std::string before = picture(surface, {0, 0, 362, 144});
    const int kept = surface.gemaltes(), keptHidden = sheet.staff.PicB(1).gemaltes();
    int told = 0;
    const auto watch = surface.changed.connect([&](form::Aspect) { ++told; });
    for (int i = 0; i < 100; ++i) NotenZeigen(sheet.staff, sheet.task);
    EXPECT_EQ(picture(surface, {0, 0, 362, 144}), before);
    EXPECT_LE(surface.gemaltes(), kept + 9);
    EXPECT_EQ(sheet.staff.PicB(1).gemaltes(), keptHidden);
    EXPECT_GT(told, 0);
}

}  // namespace
}  // namespace notation
