#include "staff/staff.h"

#include "sheet.h"
#include "staff/ink.h"
#include "staff/pixel_grid.h"
#include "support/recording_surface.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace staff {
namespace {

using support::RecordingSurface;

std::string picture(const Canvas& surface) {
    PixelGrid pixels(surface.bounds().width, surface.bounds().height);
    surface.replay(pixels);
    return pixels.drawing({0, 0, surface.bounds().width, surface.bounds().height});
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
            EXPECT_EQ(sheet.staff.PicBNot.bounds().width, 362 + by);
            EXPECT_EQ(sheet.staff.layout().x(3), 180 + by);
            EXPECT_EQ(sheet.staff.layout().columnAt(static_cast<float>(180 + by)), 3);
            RecordingSurface shown;
            sheet.staff.PicB(s).replay(shown);
            EXPECT_EQ(stems(shown, 80 + by), signature > 0 ? 2 * signature : -signature);
            EXPECT_EQ(shown.curves.size(), 1U) << "the clef";
        }
}

TEST(Note, ShowsItsSignUnlessAnEarlierOneHolds) {
    const Pitch fis{66, qzOf(3, 1)}, f{65, qzOf(3, 0)}, fisHigh{78, qzOf(3, 1)},
        ges{66, qzOf(4, -1)}, geses{65, qzOf(4, -2)};
    struct Row {
        const char* name;
        std::vector<Pitch> before;
        Pitch note;
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
        for (const Pitch& note : row.before) sheet.staff.NoteSetzen(c++, note, ink::black);
        RecordingSurface before, after;
        sheet.staff.PicB(0).replay(before);
        sheet.staff.NoteSetzen(c, row.note, ink::black);
        EXPECT_EQ(sheet.staff.NotSelb(c).zeichen, row.code);
        sheet.staff.PicB(0).replay(after);
        const int x = sheet.staff.layout().x(c) - 5;  // left of the stem of the note
        EXPECT_EQ(stems(after, x) - stems(before, x), row.stems);
    }
}

TEST(Surface, ForgetsWhatIsWipedAndKeepsWhatIsSeen) {
    Sheet sheet(6, 0, 60);
    sheet.showTask();
    Canvas& surface = sheet.staff.PicB(0);
    const std::string before = picture(surface);
    const int kept = surface.paintedCount();
    int told = 0;
    const auto watch = surface.changed.connect([&](form::Aspect) { ++told; });
    for (int i = 0; i < 100; ++i) sheet.showTask();
    EXPECT_EQ(picture(surface), before);
    EXPECT_LE(surface.paintedCount(), kept + 9);
    EXPECT_GT(told, 0);
}

}  // namespace
}  // namespace staff
