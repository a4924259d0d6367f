#include "notation/urteil.h"

#include "notation/farbe.h"
#include "sheet.h"

#include <gtest/gtest.h>

namespace notation {
namespace {

/// Writes the expected notes, with one changed.
void write(Sheet& sheet, int column, const Ton& instead) {
    for (int c = 0; c < sheet.task.tonAnz; ++c)
        sheet.staff.NoteSetzen(c, c == column ? instead : sheet.task.inSpalte(c), farbe::schwarz);
}

TEST(Judgement, AsksForSoundAndSpellingOfTheInnerColumns) {
    struct Row {
        const char* name;
        int column;
        Ton instead;
        int wrong;
    };
    const Ton fis{66, qzVon(3, 1)}, ges{66, qzVon(4, -1)}, f{65, qzVon(3, 0)},
        fisHigh{78, qzVon(3, 1)}, fisis{67, qzVon(3, 2)};
    for (const Row& row :
         {Row{"as expected", 2, fis, 0},  // D E F# in D major
          Row{"the same sound, other letter", 2, ges, 1}, Row{"without its sharp", 2, f, 1},
          Row{"a double sharp", 2, fisis, 1}, Row{"an octave higher", 2, fisHigh, 1},
          Row{"the first column is not asked", 0, f, 0}, Row{"nor the last", 7, f, 0}}) {
        SCOPED_TRACE(row.name);
        Sheet sheet(2, 0, 60);
        write(sheet, row.column, row.instead);
        EXPECT_EQ(falscheSpalten(sheet.staff, sheet.task), row.wrong);
    }
}

TEST(Judgement, ComparesInTheOrderOfTheTask) {
    for (const char* order : {"up", "down", "melody"}) {
        SCOPED_TRACE(order);
        Sheet sheet(-3, 5, 48);
        sheet.task.akt_richtung = order == std::string("down") ? -1 : 1;
        sheet.task.abfolge = order == std::string("melody") ? 1 : 0;
        const std::array melody{0, 3, 1, 2, 6, 4, 5, 7};
        for (int i = 0; i < 8; ++i) sheet.task.ton_abfolg[i] = melody[static_cast<std::size_t>(i)];
        write(sheet, -1, {});
        EXPECT_EQ(falscheSpalten(sheet.staff, sheet.task), 0);
        for (int c = 0; c < 8; ++c) {
            const int k = order == std::string("up")     ? c
                          : order == std::string("down") ? 7 - c
                                                         : melody[static_cast<std::size_t>(c)];
            EXPECT_EQ(sheet.staff.NotSelb(c).ton(), sheet.task.toene[k]);
        }
    }
}

/// Every task begins as letters between its first and last note, and dropping the right accidental
/// on each makes it right.
TEST(Task, CanBeWrittenRight) {
    for (int key = -6; key <= 6; ++key)
        for (int mode = 0; mode < 7; ++mode)
            for (const int direction : {1, -1}) {
                if (key == 0) continue;
                SCOPED_TRACE(testing::Message() << key << ' ' << mode << ' ' << direction);
                Sheet sheet(key, mode, 48);
                sheet.task.akt_richtung = direction;
                NotenZeigen(sheet.staff, sheet.task);
                int missing = 0;
                for (int c = 1; c < 7; ++c) {
                    EXPECT_EQ(sheet.staff.NotSelb(c).vorzeichen, 0);
                    const int accidental = vorzeichen(sheet.task.inSpalte(c).qz);
                    missing += accidental != 0;
                    EXPECT_EQ(sheet.staff.NotSelb(c).SchrittY * 4,
                              YAusTon(sheet.task.inSpalte(c), sheet.staff.SchlZ()).y);
                }
                EXPECT_EQ(sheet.staff.NotSelb(0).ton(), sheet.task.inSpalte(0));
                EXPECT_EQ(falscheSpalten(sheet.staff, sheet.task), missing);
                for (int c = 1; c < 7; ++c) {
                    const int accidental = vorzeichen(sheet.task.inSpalte(c).qz);
                    EXPECT_EQ(sheet.drop(c, quelle::mit(accidental)), accidental != 0);
                }
                EXPECT_EQ(falscheSpalten(sheet.staff, sheet.task), 0);
            }
}

TEST(Solution, ReddensOnlyWhatWasWrong) {
    Sheet sheet(2, 0, 60);
    NotenZeigen(sheet.staff, sheet.task);
    ASSERT_TRUE(sheet.drop(2, quelle::mit(1)));  // F#, right
    ASSERT_TRUE(sheet.drop(6, quelle::mit(2)));  // C##, wrong
    LoesungZeigen(sheet.staff, sheet.task);
    EXPECT_EQ(falscheSpalten(sheet.staff, sheet.task), 0);
    for (int c = 0; c < 8; ++c)
        EXPECT_EQ(sheet.staff.NotSelb(c).farbe, c == 6 ? farbe::rot : farbe::schwarz) << c;
    EXPECT_EQ(sheet.staff.NotSelb(6).zeichen, 8);
}

}  // namespace
}  // namespace notation
