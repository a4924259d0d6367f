#include "staff/notenzeile.h"

#include "sheet.h"
#include "staff/farbe.h"
#include "staff/pixelbild.h"
#include "support/recording_surface.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace staff {
namespace {

using support::RecordingSurface;

std::string picture(const Blatt& surface) {
    Pixelbild pixels(surface.lage().breite, surface.lage().hoehe);
    surface.zeigen(pixels);
    return pixels.zeichnung({0, 0, surface.lage().breite, surface.lage().hoehe});
}

/// Strokes as tall as those of an accidental that stand left of `x`.
auto stems(const RecordingSurface& shown, int x) {
    return std::ranges::count_if(
        shown.lines, [x](const auto& l) { return l.x1 < x && std::abs(l.y2 - l.y1) >= 21; });
}

TEST(Layout, ShowsOneStaffWithItsKeySignatureLeftOfTheColumns) {
    for (const auto& [base, s] : {std::pair{60, 0}, {36, 1}})
        for (int signature = -7; signature <= 7; ++signature) {
            SCOPED_TRACE(testing::Message() << s << ' ' << signature);
            Sheet sheet(1, 0, base, signature);
            EXPECT_EQ(sheet.staff.SchlZ(), s);
            EXPECT_TRUE(sheet.staff.PicB(s).visible());
            EXPECT_FALSE(sheet.staff.PicB(1 - s).visible());
            const int by = 10 * std::abs(signature);
            EXPECT_EQ(sheet.staff.PicBNot.lage().breite, 362 + by);
            EXPECT_EQ(sheet.staff.lage().x(3), 180 + by);
            EXPECT_EQ(sheet.staff.lage().spalteBei(static_cast<float>(180 + by)), 3);
            RecordingSurface shown;
            sheet.staff.PicB(s).zeigen(shown);
            EXPECT_EQ(stems(shown, 80 + by), signature > 0 ? 2 * signature : -signature);
            EXPECT_EQ(shown.curves.size(), 1U) << "the clef";
        }
}

TEST(Note, ShowsItsSignUnlessAnEarlierOneHolds) {
    const Ton fis{66, qzVon(3, 1)}, f{65, qzVon(3, 0)}, fisHigh{78, qzVon(3, 1)},
        ges{66, qzVon(4, -1)}, geses{65, qzVon(4, -2)};
    struct Row {
        const char* name;
        std::vector<Ton> before;
        Ton note;
        int code, stems;
    };
    for (const Row& row : {Row{"first", {}, fis, 8, 2}, Row{"the same again", {fis}, fis, 10, 0},
                           Row{"natural after a sharp shows nothing", {fis}, f, 7, 0},
                           Row{"sharp, natural, sharp", {fis, f}, fis, 8, 2},
                           Row{"an octave higher", {fis}, fisHigh, 8, 2},
                           Row{"another line between", {fis, ges}, fis, 10, 0},
                           Row{"flat", {f}, ges, 6, 1}, Row{"double flat", {f}, geses, 5, 2}}) {
        SCOPED_TRACE(row.name);
        Sheet sheet(0, 0, 60);
        int c = 0;
        for (const Ton& note : row.before) sheet.staff.NoteSetzen(c++, note, farbe::schwarz);
        RecordingSurface before, after;
        sheet.staff.PicB(0).zeigen(before);
        sheet.staff.NoteSetzen(c, row.note, farbe::schwarz);
        EXPECT_EQ(sheet.staff.NotSelb(c).zeichen, row.code);
        sheet.staff.PicB(0).zeigen(after);
        const int x = sheet.staff.lage().x(c) - 5;  // left of the stem of the note
        EXPECT_EQ(stems(after, x) - stems(before, x), row.stems);
    }
}

TEST(Surface, ForgetsWhatIsWipedAndKeepsWhatIsSeen) {
    Sheet sheet(6, 0, 60);
    sheet.showTask();
    Blatt& surface = sheet.staff.PicB(0);
    const std::string before = picture(surface);
    const int kept = surface.gemaltes();
    int told = 0;
    const auto watch = surface.changed.connect([&](form::Aspect) { ++told; });
    for (int i = 0; i < 100; ++i) sheet.showTask();
    EXPECT_EQ(picture(surface), before);
    EXPECT_LE(surface.gemaltes(), kept + 9);
    EXPECT_GT(told, 0);
}

}  // namespace
}  // namespace staff
