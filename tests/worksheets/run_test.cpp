#include "support/drill_fixture.h"

#include <gtest/gtest.h>

namespace worksheets {
namespace {

using engine::AufgZustand;
using support::DrillFixture;

/// One task, answered after half a second: at once right, or wrong until it is lost.
void doTask(DrillFixture& drill, bool right) {
    drill.next();
    drill.wait(500);
    if (right)
        drill.answerRight();
    else
        while (drill.answerWrong()) continue;
}

/// Some time later: nothing has gone on, nothing sounds, the device is audible, the record is kept.
void expectQuietHome(DrillFixture& drill) {
    EXPECT_EQ(drill.sheet(), nullptr);
    EXPECT_EQ(drill.programm.forms.loaded("testergebnis"), nullptr);
    const auto starts = drill.midiOut.starts.size();
    drill.wait(20000);
    EXPECT_EQ(drill.midiOut.starts.size(), starts);
    EXPECT_TRUE(drill.midiOut.sounding().empty());
    EXPECT_TRUE(drill.midiOut.queued.empty());
    EXPECT_EQ(drill.midiOut.volume, std::pair(40000, 30000));
    EXPECT_TRUE(drill.host.faults.empty());
    EXPECT_TRUE(drill.dialogs.messages.empty());
    EXPECT_TRUE(drill.programm.forms.loaded("einstellung1")->visible());
    EXPECT_TRUE(std::filesystem::exists(drill.drill.xml.datei()));
}

TEST(Training, AConfusedScaleComesUpMoreOftenAndTheLastTaskCanBeHeardAfterTheEnd) {
    DrillFixture drill(5);
    drill.z.uebungsmodus = 1;
    drill.z.richtung = 0;
    drill.run();
    drill.next();
    const int asked = drill.task().skala_nr, confused = (asked + 3) % 7;
    drill.answer(confused);
    drill.answerRight();
    for (int i = 1; i <= 7; ++i) {
        const int code = drill.z.mathaeufgk_box(i, 0);
        EXPECT_EQ(drill.z.mathaeufgk_box(i, 1), code == asked + 1      ? 6
                                                : code == confused + 1 ? 5
                                                                       : 4);
    }
    EXPECT_EQ(drill.caption("zaehler", 0) + drill.caption("zaehler", 1), "11");
    while (drill.turn() != AufgZustand::TrainingBeendet) doTask(drill, false);
    drill.click("wieder2");
    drill.wait(drill.taskLength());
    EXPECT_TRUE(drill.control("wieder2").usable());
    EXPECT_FALSE(drill.control("CmdNextAufg").usable());
}

TEST(Exam, EndsByItsCountAndItsClockStops) {
    DrillFixture drill(7);
    drill.dismissResults();
    drill.z.uebungsmodus = 4;
    drill.z.richtung = 0;
    drill.run();
    for (int n = 1; n <= 28; ++n) {
        ASSERT_NE(drill.turn(), AufgZustand::PruefungBeendet) << n;
        doTask(drill, n % 2 == 0);
    }
    EXPECT_EQ(drill.turn(), AufgZustand::PruefungBeendet);
    const int left = drill.lauf().stand().restZeit;
    drill.wait(60000);
    EXPECT_EQ(drill.lauf().stand().restZeit, left);
    drill.click("zurueck");
    expectQuietHome(drill);
    EXPECT_EQ(drill.rows.size(), 7U);
    EXPECT_FALSE(drill.host.records.contains("zepha9/A1"));
}

/// The clock may run out while a task waits, sounds or is open.
TEST(Exam, EndsByTheClockAtAnyMoment) {
    for (const int lead : {5000, 40, 80, 130, 1000, 3000}) {
        SCOPED_TRACE(lead);
        DrillFixture drill(11);
        drill.dismissResults();
        drill.z.uebungsmodus = 4;
        drill.z.tempoIdx = 9;
        drill.choose({1, 2, -4});
        drill.run();
        const int seconds = drill.lauf().stand().restZeit;
        drill.wait(seconds * 1000 - lead);
        ASSERT_NE(drill.sheet(), nullptr);
        EXPECT_EQ(drill.caption("stop_uhr"), "W4610 W39410 W480");
        drill.click("CmdNextAufg");
        drill.wait(lead + 400);
        expectQuietHome(drill);
        EXPECT_EQ(drill.total, "0.0%");
    }
}

TEST(AutomaticStepping, TheNextTaskComesByItselfUnlessTheLastIsHeardOnceMore) {
    DrillFixture drill;
    drill.z.abfrage = 1;
    drill.run();
    int tasks = 0;
    const auto watch = drill.sheet()->ereignis.connect([&](Arbeitsblatt::Ereignis turn) {
        tasks += turn == Arbeitsblatt::Ereignis::AufgabeGezogen ? 1 : 0;
    });
    EXPECT_FALSE(drill.control("CmdNextAufg").visible());
    drill.wait(1790);
    EXPECT_EQ(tasks, 0);
    drill.wait(20 + 200 + drill.taskLength());
    EXPECT_EQ(tasks, 1);
    drill.wait(60000);
    EXPECT_EQ(tasks, 1) << "it waits for the answer";
    drill.answerRight();
    EXPECT_TRUE(drill.control("LbNextAufg").visible());
    drill.wait(1700);
    drill.click("wieder2");
    EXPECT_FALSE(drill.control("LbNextAufg").visible());
    drill.wait(drill.taskLength() + 1700);
    EXPECT_EQ(tasks, 1) << "its 1.8 seconds begin anew";
    drill.wait(300);
    EXPECT_EQ(tasks, 2);
    EXPECT_FALSE(drill.control("LbNextAufg").visible());
}

/// Every way to set a task or a repetition sounding, and what must come before it.
struct Way {
    const char* button;
    bool answered;
};
constexpr Way ways[] = {{"CmdNextAufg", false}, {"wieder", false}, {"wieder2", true}};

void prepare(DrillFixture& drill, const Way& way) {
    drill.z.tempoIdx = 9;
    drill.run();
    if (std::string(way.button) != "CmdNextAufg") drill.next();
    if (way.answered) drill.answerRight();
}

TEST(Leaving, InEveryWaitAndFadeAndWhileItSoundsLeavesNoNoteAndAnAudibleDevice) {
    for (const Way& way : ways) {
        for (const int after :
             {1, 49, 50, 51, 99, 100, 101, 149, 150, 151, 400, 2399, 2549, 2551}) {
            SCOPED_TRACE(std::string(way.button) + " after " + std::to_string(after));
            DrillFixture drill;
            prepare(drill, way);
            drill.later(after, [&] {
                Arbeitsblatt& sheet = *drill.sheet();
                sheet.closeBox();
                sheet.closeBox();
                drill.midiOut.starts.clear();
            });
            drill.click(way.button);
            drill.wait(3000);
            EXPECT_TRUE(drill.midiOut.starts.empty());
            expectQuietHome(drill);
        }
        for (const int step : {1, 40, 80, 82, 120, 161}) {
            SCOPED_TRACE(std::string(way.button) + " in step " + std::to_string(step));
            DrillFixture drill;
            prepare(drill, way);
            int steps = 0;
            drill.midiOut.volumeSet = [&] {
                if (++steps == step) drill.loop.post([&] { drill.click("zurueck"); });
            };
            drill.click(way.button);
            drill.wait(1);
            expectQuietHome(drill);
        }
    }
}

TEST(Leaving, ThenTheNextRunIsAFreshOne) {
    DrillFixture drill;
    prepare(drill, ways[0]);
    for (int n = 0; n < 3; ++n) {
        drill.later(75, [&] { drill.click("zurueck"); });
        drill.click("CmdNextAufg");
        drill.wait(500);
        drill.run();
    }
    doTask(drill, true);
    drill.programm.forms.show("arbeitsblatt1");
    drill.wait(1000);
    EXPECT_EQ(drill.caption("zaehler", 0), "1") << "another activation does not begin it anew";
}

TEST(Fault, InADrawIsLoggedShownAndLeadsHome) {
    DrillFixture drill;
    drill.z.uebungsmodus = 1;
    drill.run();
    drill.z.FrquMinAkt = 32767;
    drill.click("CmdNextAufg");
    drill.wait(1000);
    EXPECT_EQ(drill.sheet(), nullptr);
    ASSERT_EQ(drill.host.faults.size(), 1U);
    EXPECT_EQ(drill.host.faults[0].at(0).text(), "zepha9.MatWahl.arbeitsblatt1");
    EXPECT_EQ(drill.host.faults[0].at(1), core::Value(6));
    EXPECT_EQ(drill.dialogs.messages.size(), 1U);
    EXPECT_TRUE(drill.programm.forms.loaded("einstellung1")->visible());
}

}  // namespace
}  // namespace worksheets
