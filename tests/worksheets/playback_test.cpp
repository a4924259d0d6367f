#include "support/drill_fixture.h"

#include <gtest/gtest.h>

#include <set>

namespace worksheets {
namespace {

using support::DrillFixture;

TEST(Playback, TheNotesSoundInOrderEachOnItsBeatAndForNineTenthsOfIt) {
    for (const int category : {0, 3, 4, 5, 6})
        for (const int richtung : {0, 1})
            for (const int abfolge : {0, 1})
                for (const int stimmung : {0, 1, 2}) {
                    SCOPED_TRACE(testing::Message() << category << richtung << abfolge << stimmung);
                    DrillFixture drill(category);
                    drill.category(category);
                    drill.z.richtung = richtung;
                    drill.z.abfolge = abfolge;
                    drill.z.stimmung = stimmung;
                    drill.z.tempoIdx = 8;
                    drill.run();
                    for (int i = 0; i < 9; ++i) drill.z.patch[i] = 40 + i;
                    drill.midiOut.sends.clear();
                    drill.click("CmdNextAufg");
                    const auto& a = drill.task();
                    const auto notes = drill.midiOut.noteOns();
                    const auto bends = drill.midiOut.sentWith(0xE0);
                    const auto count = static_cast<std::size_t>(int(a.tonAnz));
                    ASSERT_EQ(notes.size(), count);
                    ASSERT_EQ(bends.size(), stimmung == 0 ? 0U : count);
                    for (std::size_t i = 0; i < notes.size(); ++i) {
                        const int k = a.index(static_cast<int>(i));
                        EXPECT_EQ(notes[i].data1, a.noten[k]);
                        EXPECT_EQ(notes[i].time, 333 * static_cast<int>(i));
                        EXPECT_EQ(notes[i].status, 144 + (stimmung == 0 ? 0 : k + 1));
                        if (stimmung == 0) continue;
                        EXPECT_EQ(bends[i].status, 224 + k + 1);
                        EXPECT_EQ(bends[i].data2, 64 + a.stimmWert[k]);
                    }
                    for (const auto& event : drill.midiOut.queued)
                        if (event.tag >= 1000000) {
                            EXPECT_EQ(event.time % 333, 300);
                        }
                    const auto instruments = drill.midiOut.sentWith(0xC0);
                    ASSERT_EQ(instruments.size(), 9U);
                    for (int i = 0; i < 9; ++i)
                        EXPECT_EQ(instruments[static_cast<std::size_t>(i)].data1, 40 + i);
                }
}

TEST(Playback, AVaryingReferencePitchBendsAllNotesOfATaskAlike) {
    std::set<int> detunes;
    for (int n = 0; n < 60; ++n) {
        DrillFixture drill(n);
        drill.z.frequenz = 1;
        drill.z.stimmung = n % 2;
        drill.run();
        drill.next();
        const auto bends = drill.midiOut.sentWith(0xE0);
        ASSERT_EQ(bends.size(), n % 2 == 0 ? 1U : 8U);
        std::set<int> here;
        for (const auto& [status, data1, bend, time, tag] : bends)
            here.insert(bend - 64 -
                        (n % 2 == 0 ? 0 : int(drill.task().stimmWert[status % 16 - 1])));
        ASSERT_EQ(here.size(), 1U);
        detunes.insert(*here.begin());
    }
    EXPECT_GE(*detunes.begin(), -15);
    EXPECT_LE(*detunes.rbegin(), 15);
    EXPECT_GT(detunes.size(), 15U);
}

TEST(Repetition, CountsBeforeTheAnswerAndNotAfterIt) {
    DrillFixture drill;
    drill.run();
    drill.click("CmdNextAufg");
    const auto notes = drill.task().noten[0];
    for (int n = 1; n <= 3; ++n) {
        drill.wait(drill.taskLength() - 1);
        EXPECT_FALSE(drill.open(0));
        EXPECT_FALSE(drill.control("wieder").usable());
        drill.wait(1);
        EXPECT_EQ(drill.loop.elapsed(), drill.midiOut.starts.back() + drill.taskLength());
        EXPECT_TRUE(drill.open(0));
        drill.click("wieder");
        drill.click("wieder");
        EXPECT_EQ(drill.task().verlauf.whlgAnz, n) << "the second click finds it disabled";
    }
    drill.wait(drill.taskLength());
    drill.answerWrong();
    EXPECT_EQ(drill.task().verlauf.whlgAnz, 3);
    EXPECT_EQ(drill.task().verlauf.whlg_anz, 0);
    drill.answerRight();
    EXPECT_FALSE(drill.control("wieder").usable());
    drill.click("wieder2");
    EXPECT_FALSE(drill.control("CmdNextAufg").usable()) << "the next task waits for its end";
    drill.wait(drill.taskLength());
    EXPECT_TRUE(drill.control("CmdNextAufg").usable());
    EXPECT_FALSE(drill.open(0)) << "the task stays closed";
    EXPECT_EQ(drill.caption("whlgzaehler"), "3");
    EXPECT_EQ(drill.task().noten[0], notes);
    drill.next();
    EXPECT_EQ(drill.task().verlauf.whlgAnz, 0);
}

}  // namespace
}  // namespace worksheets
