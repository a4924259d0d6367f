#include "staff/position.h"

#include "staff/limits.h"

#include <gtest/gtest.h>

namespace staff {
namespace {

TEST(Staff, NotesStandOnTheirLines) {
    struct Row {
        const char* name;
        Pitch pitch;
        int s;
        Position place;
    };
    for (const Row& row : {Row{"E4 on the bottom line", {64, qzOf(2, 0)}, 0, {96}},
                           Row{"A3 on the top line of the bass", {57, qzOf(5, 0)}, 1, {48}},
                           Row{"B##3 a step below C4", {61, qzOf(6, 2)}, 0, {108}},
                           Row{"Cbb4 on the first ledger line", {58, qzOf(0, -2)}, 0, {104}},
                           Row{"C7 is the highest of the surface", {96, qzOf(0, 0)}, 0, {20}},
                           Row{"D7 goes under the octave mark", {98, qzOf(1, 0)}, 0, {44, 1}},
                           Row{"the bass has no mark", {74, qzOf(1, 0)}, 1, {8}}}) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(YAusTon(row.pitch, row.s), row.place);
        EXPECT_EQ(TonAusY(row.place.y, row.s, accidental(row.pitch.qz), row.place.octave),
                  row.pitch);
    }
}

TEST(Limits, GoNoFurtherThanRangeAndStaff) {
    struct Row {
        const char* name;
        int s;
        Range range;
        int highest, lowest;
    };
    for (const Row& row : {Row{"A major begins on A", 0, {3, 0, 9, 48, 72}, 56, 112},
                           Row{"treble no deeper than F3", 0, {0, 0, 0, 36, 72}, 76, 120},
                           Row{"bass no higher than G4", 1, {0, 0, 0, 36, 72}, 24, 96}}) {
        SCOPED_TRACE(row.name);
        const Limits limits = limitsOn(row.s, row.range);
        EXPECT_EQ(limits.highest(), row.highest);
        EXPECT_EQ(limits.lowest(), row.lowest);
    }
}

}  // namespace
}  // namespace staff
