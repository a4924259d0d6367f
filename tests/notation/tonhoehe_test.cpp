#include "notation/tonhoehe.h"

#include "core/katalog.h"
#include "notation/grenzen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace notation {
namespace {

TEST(Spelling, LetterAndAccidentalComeBack) {
    for (int letter = 0; letter < 7; ++letter)
        for (int accidental = -2; accidental <= 2; ++accidental) {
            SCOPED_TRACE(testing::Message() << "CDEFGAB"[letter] << accidental);
            const int qz = qzVon(letter, accidental);
            EXPECT_EQ(stammton(qz), letter);
            EXPECT_EQ(vorzeichen(qz), accidental);
            EXPECT_EQ(tonklasse(qz), (halbtoene(letter) + accidental + 12) % 12);
        }
    EXPECT_EQ(qzVon(0, 0), QzMitte);
}

TEST(Staff, NotesStandOnTheirLines) {
    struct Row {
        const char* name;
        Ton ton;
        int s;
        Stelle place;
    };
    for (const Row& row :
         {Row{"E4 on the bottom line", {64, qzVon(2, 0)}, 0, {96}},
          Row{"F5 on the top line", {77, qzVon(3, 0)}, 0, {64}},
          Row{"C4 on the first ledger line", {60, qzVon(0, 0)}, 0, {104}},
          Row{"C4 above the bass staff", {60, qzVon(0, 0)}, 1, {40}},
          Row{"A3 on the top line of the bass", {57, qzVon(5, 0)}, 1, {48}},
          Row{"F3 between the dots of the clef", {53, qzVon(3, 0)}, 1, {56}},
          Row{"B#3 a step below C4, though it sounds as C4", {60, qzVon(6, 1)}, 0, {108}},
          Row{"B##3 on the same line", {61, qzVon(6, 2)}, 0, {108}},
          Row{"Cb4 on its line, though it sounds as B3", {59, qzVon(0, -1)}, 0, {104}},
          Row{"Cbb4 too", {58, qzVon(0, -2)}, 0, {104}},
          Row{"Cb4 in the bass", {59, qzVon(0, -1)}, 1, {40}},
          Row{"A5 above the staff", {81, qzVon(5, 0)}, 0, {56}},
          Row{"C7 is the highest of the surface", {96, qzVon(0, 0)}, 0, {20}},
          Row{"D7 goes under the octave mark", {98, qzVon(1, 0)}, 0, {44, 1}},
          Row{"the bass has no mark", {74, qzVon(1, 0)}, 1, {8}}}) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(YAusTon(row.ton, row.s), row.place);
        EXPECT_EQ(TonAusY(row.place.y, row.s, vorzeichen(row.ton.qz), row.place.oktave), row.ton);
    }
}

/// Calls `f` with the notes of every task of the church modes that the rules allow: each key, mode
/// and octave of each range.
template <class F>
void everyTask(F f) {
    constexpr std::array fifths{0, 2, 4, -1, 1, 3, 5};  // of each degree from the first
    const auto pattern = core::katalog::grundmuster(0);
    for (int lowest = 36; lowest <= 72; lowest += 12)
        for (int octaves = 2; lowest + 12 * octaves <= 96; ++octaves)
            for (int shift = 0; shift <= octaves - 2; ++shift)
                for (int key = -7; key <= 7; ++key)
                    for (int mode = 0; mode < 7; ++mode) {
                        SCOPED_TRACE(testing::Message() << lowest << '+' << shift << " key " << key
                                                        << " mode " << mode);
                        const auto at = [&](auto& table, int k) {
                            return table[static_cast<std::size_t>((mode + k) % 7)];
                        };
                        const int first = key + QzMitte + at(fifths, 0);
                        const bool low = first % 7 == 6;
                        const int base = lowest + 12 * shift - (low ? 12 : 0);
                        std::array<Ton, 8> notes;
                        for (int k = 0; k < 8; ++k) {
                            auto& note = notes[static_cast<std::size_t>(k)];
                            note.qz = key + at(fifths, k) + QzMitte;
                            note.midi = (at(pattern, k) + tonklasse(key + QzMitte)) % 12 + base;
                            if (k > 0 && note.midi < notes[static_cast<std::size_t>(k - 1)].midi)
                                note.midi += 12;
                        }
                        f(notes, notes[7].midi < 67 ? 1 : 0,
                          Umfang{key, at(fifths, 0), tonklasse(first) - (low ? 12 : 0), lowest,
                                 lowest + 12 * octaves});
                    }
}

TEST(Staff, EveryPlayableNoteStandsOnTheSurfaceAndReadsBack) {
    int notesSeen = 0;
    everyTask([&](const auto& notes, int s, const Umfang&) {
        for (std::size_t i = 0; i < notes.size(); ++i) {
            const Ton& note = notes[i];
            const Stelle place = YAusTon(note, s);
            // B#1, which only begins a task and takes no drop, lies below the lowest C.
            if (note == Ton{24, qzVon(6, 1)}) {
                EXPECT_EQ(i, 0U);
            } else {
                EXPECT_EQ(TonAusY(place.y, s, vorzeichen(note.qz), place.oktave), note);
            }
            EXPECT_EQ(place.y % 4, 0);
            EXPECT_GE(place.y, 20) << "the head is seen whole";
            EXPECT_LE(place.y, 128);
            EXPECT_EQ(place.oktave, 0);
            if (i > 0) {
                EXPECT_EQ(place.y, YAusTon(notes[i - 1], s).y - 4) << "a step up each";
            }
            ++notesSeen;
        }
    });
    EXPECT_EQ(notesSeen, 20 * 105 * 8);
}

TEST(Limits, HoldTheNotesOfEveryTaskThatTheUserWrites) {
    everyTask([&](const auto& notes, int s, const Umfang& range) {
        const Grenze limits = grenzenAuf(s, range);
        EXPECT_EQ(limits.hoechste() % 4, 0);
        EXPECT_EQ(limits.tiefste() % 4, 0);
        for (std::size_t i = 1; i < 7; ++i) {
            const int y = YAusTon(notes[i], s).y;
            EXPECT_GE(y, limits.hoechste());
            EXPECT_LE(y, limits.tiefste());
        }
    });
}

TEST(Limits, FollowRangeAndKey) {
    struct Row {
        const char* name;
        int s;
        Umfang range;
        int highest, lowest;
    };
    for (const Row& row : {Row{"C major over two octaves", 0, {0, 0, 0, 48, 72}, 76, 132},
                           Row{"deeper goes no further than F3", 0, {0, 0, 0, 36, 72}, 76, 120},
                           Row{"bass from C2", 1, {0, 0, 0, 36, 60}, 40, 96},
                           Row{"bass goes no further up than G4", 1, {0, 0, 0, 36, 72}, 24, 96},
                           Row{"A major begins on A", 0, {3, 0, 9, 48, 72}, 56, 112}}) {
        SCOPED_TRACE(row.name);
        const Grenze limits = grenzenAuf(row.s, row.range);
        EXPECT_EQ(limits.hoechste(), row.highest);
        EXPECT_EQ(limits.tiefste(), row.lowest);
        EXPECT_EQ(limits.unten - limits.oben, row.lowest - row.highest + 14);
    }
}

TEST(Task, AccidentalsCountAtLeastOne) {
    struct Row {
        const char* name;
        int key, first, count;
    };
    for (const Row& row :
         {Row{"C major", 0, 0, 1}, Row{"G major", 1, 0, 1}, Row{"F# phrygian in D", 2, 4, 1},
          Row{"Eb major", -3, 0, 2}, Row{"C minor", -3, 3, 3}, Row{"B major", 5, 0, 5},
          Row{"F# major", 6, 0, 5}, Row{"B lydian in F#", 6, -1, 6}, Row{"Gb major", -6, 0, 5},
          Row{"F locrian in Gb", -6, 5, 6}}) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(vorzeichenAnzahl(row.key, row.first), row.count);
    }
}

}  // namespace
}  // namespace notation
