#include "results/testergebnis.h"
#include "support/desk.h"

#include <gtest/gtest.h>

namespace worksheets {
namespace {

using support::Practice;

const results::Testergebnis& result(const Practice& desk) {
    return dynamic_cast<results::Testergebnis&>(desk.form("testergebnis"));
}

/// Some time later: nothing has gone on, nothing sounds, the device is audible, the record is kept.
void expectQuietHome(Practice& desk) {
    EXPECT_FALSE(desk.running());
    EXPECT_FALSE(desk.loaded("testergebnis"));
    const auto starts = desk.midi.starts.size();
    desk.wait(20000);
    EXPECT_EQ(desk.midi.starts.size(), starts);
    EXPECT_TRUE(desk.midi.sounding().empty());
    EXPECT_TRUE(desk.midi.queued.empty());
    EXPECT_EQ(desk.midi.volume, std::pair(40000, 30000));
    EXPECT_TRUE(desk.host.faults.empty());
    EXPECT_TRUE(desk.dialogs.messages.empty());
    EXPECT_TRUE(desk.setUp().visible());
    EXPECT_TRUE(std::filesystem::exists(desk.drill.xml.datei()));
}

/// The clock may run out while a task waits, sounds or is open, or while it is asked whether to
/// leave.
TEST(Exam, EndsByTheClockAtAnyMoment) {
    constexpr int asked = 6000;
    for (const int lead : {5000, 40, 80, 130, 1000, 3000, asked}) {
        SCOPED_TRACE(lead);
        Practice desk({.seed = 11});
        std::string total;
        desk.whenResult([&] { total = result(desk).gesamtText(); });
        desk.z.uebungsmodus = 4;
        desk.z.tempoIdx = 9;
        desk.choose({1, 2, -4});
        desk.run();
        const int seconds = desk.exerciseRun().standing().restZeit;
        desk.wait(seconds * 1000 - lead);
        ASSERT_TRUE(desk.running());
        EXPECT_EQ(desk.caption("stop_uhr"), "W4610 W39410 W480");
        desk.click("CmdNextAufg");
        desk.wait(400);
        desk.dialogs.whileAsked = [&] {
            desk.wait(lead + 20000);
            EXPECT_FALSE(desk.loaded("testergebnis")) << "the question is in front";
        };
        if (lead == asked) desk.sheet().closeBox();
        desk.wait(lead);
        expectQuietHome(desk);
        EXPECT_EQ(desk.dialogs.questions.size(), lead == asked ? 1U : 0U);
        EXPECT_EQ(total, "0.0%");
    }
}

TEST(AutomaticStepping, TheNextTaskComesByItselfUnlessTheLastIsHeardOnceMore) {
    Practice desk;
    desk.z.abfrage = 1;
    desk.run();
    int tasks = 0;
    const auto watch = desk.sheet().turn.connect(
        [&](Worksheet::Turn turn) { tasks += turn == Worksheet::Turn::TaskDrawn ? 1 : 0; });
    EXPECT_FALSE(desk.on("CmdNextAufg").visible());
    desk.wait(1790);
    EXPECT_EQ(tasks, 0);
    desk.wait(20 + 200 + desk.taskLength());
    EXPECT_EQ(tasks, 1);
    desk.wait(60000);
    EXPECT_EQ(tasks, 1) << "it waits for the answer";
    desk.answerRight();
    EXPECT_TRUE(desk.on("LbNextAufg").visible());
    desk.wait(1700);
    desk.click("wieder2");
    EXPECT_FALSE(desk.on("LbNextAufg").visible());
    desk.wait(desk.taskLength() + 1700);
    EXPECT_EQ(tasks, 1) << "its 1.8 seconds begin anew";
    desk.wait(300);
    EXPECT_EQ(tasks, 2);
    EXPECT_FALSE(desk.on("LbNextAufg").visible());
}

/// Every way to set a task or a repetition sounding, and what must come before it.
struct Way {
    const char* button;
    bool answered;
};
constexpr Way ways[] = {{"CmdNextAufg", false}, {"wieder", false}, {"wieder2", true}};

void prepare(Practice& desk, const Way& way) {
    desk.z.tempoIdx = 9;
    desk.run();
    if (std::string(way.button) != "CmdNextAufg") desk.next();
    if (way.answered) desk.answerRight();
}

TEST(Leaving, InEveryWaitAndFadeAndWhileItSoundsLeavesNoNoteAndAnAudibleDevice) {
    for (const Way& way : ways) {
        for (const int after :
             {1, 49, 50, 51, 99, 100, 101, 149, 150, 151, 400, 2399, 2549, 2551}) {
            SCOPED_TRACE(std::string(way.button) + " after " + std::to_string(after));
            Practice desk;
            prepare(desk, way);
            desk.later(after, [&] {
                Worksheet& sheet = desk.sheet();
                sheet.closeBox();
                sheet.closeBox();
                desk.midi.starts.clear();
            });
            desk.click(way.button);
            desk.wait(3000);
            EXPECT_TRUE(desk.midi.starts.empty());
            expectQuietHome(desk);
        }
        for (const int step : {1, 40, 80, 82, 120, 161}) {
            SCOPED_TRACE(std::string(way.button) + " in step " + std::to_string(step));
            Practice desk;
            prepare(desk, way);
            int steps = 0;
            desk.midi.volumeSet = [&] {
                if (++steps == step) desk.loop.post([&] { desk.click("zurueck"); });
            };
            desk.click(way.button);
            desk.wait(1);
            expectQuietHome(desk);
        }
    }
}

TEST(Leaving, ThenTheNextRunIsAFreshOne) {
    Practice desk;
    prepare(desk, ways[0]);
    for (int n = 0; n < 3; ++n) {
        desk.later(75, [&] { desk.click("zurueck"); });
        desk.click("CmdNextAufg");
        desk.wait(500);
        desk.run();
    }
    desk.task(true);
    desk.programm.forms.show("arbeitsblatt1");
    desk.wait(1000);
    EXPECT_EQ(desk.caption("zaehler", 0), "1") << "another activation does not begin it anew";
}

}  // namespace
}  // namespace worksheets
