#include "support/desk.h"

#include <gtest/gtest.h>

#include <set>

namespace worksheets {
namespace {

using support::Practice;

TEST(Playback, TheNotesSoundInOrderEachOnItsBeatAndForNineTenthsOfIt) {
    for (const int category : {0, 3, 4, 5, 6})
        for (const int richtung : {0, 1})
            for (const int abfolge : {0, 1})
                for (const int stimmung : {0, 1, 2}) {
                    SCOPED_TRACE(testing::Message() << category << richtung << abfolge << stimmung);
                    Practice desk({.seed = category});
                    desk.category(category);
                    desk.z.richtung = richtung;
                    desk.z.abfolge = abfolge;
                    desk.z.stimmung = stimmung;
                    desk.z.tempoIdx = 8;
                    desk.run();
                    for (int i = 0; i < 9; ++i) desk.z.patch[i] = 40 + i;
                    desk.midi.sends.clear();
                    desk.click("CmdNextAufg");
                    const auto& a = desk.task();
                    const auto notes = desk.midi.noteOns();
                    const auto bends = desk.midi.sentWith(0xE0);
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
                    for (const auto& event : desk.midi.queued)
                        if (event.tag >= 1000000) {
                            EXPECT_EQ(event.time % 333, 300);
                        }
                    const auto instruments = desk.midi.sentWith(0xC0);
                    ASSERT_EQ(instruments.size(), 9U);
                    for (int i = 0; i < 9; ++i)
                        EXPECT_EQ(instruments[static_cast<std::size_t>(i)].data1, 40 + i);
                }
}

TEST(Playback, AVaryingReferencePitchBendsAllNotesOfATaskAlike) {
    std::set<int> detunes;
    for (int n = 0; n < 60; ++n) {
        Practice desk({.seed = n});
        desk.z.frequenz = 1;
        desk.z.stimmung = n % 2;
        desk.run();
        desk.next();
        const auto bends = desk.midi.sentWith(0xE0);
        ASSERT_EQ(bends.size(), n % 2 == 0 ? 1U : 8U);
        std::set<int> here;
        for (const auto& [status, data1, bend, time, tag] : bends)
            here.insert(bend - 64 - (n % 2 == 0 ? 0 : int(desk.task().stimmWert[status % 16 - 1])));
        ASSERT_EQ(here.size(), 1U);
        detunes.insert(*here.begin());
    }
    EXPECT_GE(*detunes.begin(), -15);
    EXPECT_LE(*detunes.rbegin(), 15);
    EXPECT_GT(detunes.size(), 15U);
}

TEST(Repetition, CountsBeforeTheAnswerAndNotAfterIt) {
    Practice desk;
    desk.run();
    desk.click("CmdNextAufg");
    const auto notes = desk.task().noten[0];
    for (int n = 1; n <= 3; ++n) {
        desk.wait(desk.taskLength() - 1);
        EXPECT_FALSE(desk.open(0));
        EXPECT_FALSE(desk.on("wieder").usable());
        desk.wait(1);
        EXPECT_EQ(desk.loop.elapsed(), desk.midi.starts.back() + desk.taskLength());
        EXPECT_TRUE(desk.open(0));
        desk.click("wieder");
        desk.click("wieder");
        EXPECT_EQ(desk.task().attempt.whlgAnz, n) << "the second click finds it disabled";
    }
    desk.wait(desk.taskLength());
    desk.answerWrong();
    EXPECT_EQ(desk.task().attempt.whlgAnz, 3);
    EXPECT_EQ(desk.task().attempt.whlg_anz, 0);
    desk.answerRight();
    EXPECT_FALSE(desk.on("wieder").usable());
    desk.click("wieder2");
    EXPECT_FALSE(desk.on("CmdNextAufg").usable()) << "the next task waits for its end";
    desk.wait(desk.taskLength());
    EXPECT_TRUE(desk.on("CmdNextAufg").usable());
    EXPECT_FALSE(desk.open(0)) << "the task stays closed";
    EXPECT_EQ(desk.caption("whlgzaehler"), "3");
    EXPECT_EQ(desk.task().noten[0], notes);
    desk.next();
    EXPECT_EQ(desk.task().attempt.whlgAnz, 0);
}

}  // namespace
}  // namespace worksheets
