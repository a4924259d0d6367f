#include "notation/tonhoehe.h"

#include <gtest/gtest.h>

#include <string>

namespace notation {
namespace {

TEST(Spelling, LetterAndAccidentalComeBack) {
    for (int letter = 0; letter < 7; ++letter)
        for (int accidental = -2; accidental <= 2; ++accidental) {
            SCOPED_TRACE(testing::Message() << "CDEFGAB"[letter] << accidental);
            const int qz = qzVon(letter, accidental);
            EXPECT_EQ(stammton(qz), letter);
            EXPECT_EQ(vorzeichen(qz), accidental);
            EXPECT_EQ(tonklasse(qz), (letter * 2 - (letter > 2 ? 1 : 0) + accidental + 12) % 12);
        }
    EXPECT_EQ(qzVon(0, 0), QzMitte);
}

TEST(Staff, NotesStandOnTheirLines) {
    struct Row {
        const char* name;
        Ton ton;
        int y;
    };
    for (const Row& row : {Row{"E4 on the bottom line", {64, qzVon(2, 0)}, 96},
                           {"F5 on the top line", {77, qzVon(3, 0)}, 64},
                           {"C4 on the first ledger line", {60, qzVon(0, 0)}, 104},
                           {"B#3 a step below it, though it sounds as C4", {60, qzVon(6, 1)}, 108},
                           {"Cb4 on its line, though it sounds as B3", {59, qzVon(0, -1)}, 104},
                           {"A5 above the staff", {81, qzVon(5, 0)}, 56}}) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(yImViolinschluessel(row.ton), row.y);
    }
}

/// A letter higher is 4 pixels higher, whatever the accidentals.
TEST(Staff, HeightFollowsTheLettersAlone) {
    for (int octave = 3; octave <= 6; ++octave)
        for (int letter = 0; letter < 7; ++letter)
            for (int accidental = -1; accidental <= 1; ++accidental) {
                const int midi = (octave + 1) * 12 + letter * 2 - (letter > 2 ? 1 : 0) + accidental;
                EXPECT_EQ(yImViolinschluessel({midi, qzVon(letter, accidental)}),
                          104 - 4 * (letter + 7 * (octave - 4)))
                    << "CDEFGAB"[letter] << accidental << octave;
            }
}

}  // namespace
}  // namespace notation
