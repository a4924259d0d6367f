#include "staff/urteil.h"

#include "sheet.h"
#include "staff/farbe.h"
#include "staff/kreistonart.h"

#include <gtest/gtest.h>

namespace staff {
namespace {

TEST(Judgement, ComparesTheInnerColumnsInTheOrderOfAMelody) {
    Sheet sheet(2, 0, 48);
    sheet.task.abfolge = 1;
    const std::array melody{0, 3, 1, 2, 6, 4, 5, 7};
    for (int c = 0; c < 8; ++c) {
        sheet.task.ton_abfolg[c] = melody[static_cast<std::size_t>(c)];
        sheet.staff.NoteSetzen(c, sheet.task.toene[sheet.task.ton_abfolg[c]], farbe::schwarz);
    }
    EXPECT_EQ(falscheSpalten(sheet.staff, sheet.task), 0);
    for (const int outer : {0, 7})
        sheet.staff.NoteSetzen(outer, sheet.task.toene[4], farbe::schwarz);
    EXPECT_EQ(falscheSpalten(sheet.staff, sheet.task), 0);
    const Ton third = sheet.task.toene[2];  // F#, in column 3
    for (const Ton& other : {Ton{third.midi + 12, third.qz}, Ton{third.midi, qzVon(4, -1)}}) {
        sheet.staff.NoteSetzen(3, other, farbe::schwarz);
        EXPECT_EQ(falscheSpalten(sheet.staff, sheet.task), 1) << "another octave, another letter";
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
                    const Ton& note = sheet.task.toene[direction == 1 ? c : 7 - c];
                    EXPECT_EQ(sheet.staff.NotSelb(c).vorzeichen, 0);
                    EXPECT_EQ(sheet.staff.NotSelb(c).y(), YAusTon(note, sheet.staff.SchlZ()).y);
                    missing += vorzeichen(note.qz) != 0;
                }
                EXPECT_EQ(sheet.staff.NotSelb(0).ton(), sheet.task.toene[direction == 1 ? 0 : 7]);
                EXPECT_EQ(falscheSpalten(sheet.staff, sheet.task), missing);
                const int first = sheet.task.toene[0].qz - QzMitte - key;
                EXPECT_EQ(vorzeichenAnzahl(key, first), std::max(missing, 1));
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
}

}  // namespace
}  // namespace staff
