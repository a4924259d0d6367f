#include "core/fortsetzung.h"
#include "support/drill_fixture.h"

#include <gtest/gtest.h>

namespace determine {
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

/// The form is gone, its set-up form is back, nothing sounds and nothing was reported.
void expectHome(DrillFixture& drill) {
    EXPECT_EQ(drill.sheet(), nullptr);
    ASSERT_NE(drill.programm.forms.loaded("einstellung1"), nullptr);
    EXPECT_TRUE(drill.programm.forms.loaded("einstellung1")->visible());
    EXPECT_EQ(drill.programm.forms.loaded("testergebnis"), nullptr);
    EXPECT_TRUE(drill.midiOut.sounding().empty());
    EXPECT_EQ(drill.midiOut.volume, std::pair(40000, 30000));
    EXPECT_TRUE(std::filesystem::exists(drill.wertung.xml.datei()));
    EXPECT_TRUE(drill.dialogs.messages.empty());
    EXPECT_TRUE(drill.host.faults.empty());
}

TEST(Training, AConfusedScaleComesUpMoreOften) {
    DrillFixture drill(5);
    drill.z.uebungsmodus = 1;
    drill.z.richtung = 0;
    drill.run();
    drill.next();
    const int asked = drill.z.skala_nr, confused = (asked + 3) % 7;
    drill.answer(confused);
    drill.answerRight();
    for (int i = 1; i <= 7; ++i) {
        const int code = drill.z.mathaeufgk_box(i, 0);
        EXPECT_EQ(drill.z.mathaeufgk_box(i, 1), code == asked + 1      ? 6
                                                : code == confused + 1 ? 5
                                                                       : 4);
    }
    EXPECT_EQ(drill.caption("zaehler", 0) + drill.caption("zaehler", 1), "11");
}

TEST(Exam, EndsByItsCountWithEveryTaskScored) {
    for (const int learner : {0, 1}) {
        DrillFixture drill(7);
        drill.dismissResults();
        drill.z.uebungsmodus = 3 + learner;
        drill.z.tempoIdx = 9;
        drill.z.richtung = 0;
        drill.run();
        const int tasks = drill.sheet()->pruefAufgaben();
        EXPECT_EQ(tasks, 28);
        EXPECT_EQ(drill.caption("lab_aufgaben"), "W462 28");
        for (int n = 1; n <= tasks; ++n) {
            ASSERT_EQ(drill.sheet()->aufgZustand() == AufgZustand::PruefungBeendet, false) << n;
            doTask(drill, learner == 0);
        }
        EXPECT_EQ(drill.sheet()->aufgZustand(), AufgZustand::PruefungBeendet);
        EXPECT_EQ(drill.caption("zurueck"), "W625");
        EXPECT_FALSE(drill.control("wieder2").usable());
        const int left = drill.sheet()->restZeit();
        drill.wait(60000);
        EXPECT_EQ(drill.sheet()->restZeit(), left) << "the clock has stopped";
        drill.click("zurueck");
        expectHome(drill);
        EXPECT_EQ(drill.total, learner == 0 ? "100.0%" : "0.0%");
        EXPECT_FALSE(drill.host.records.contains("zepha9/A1"));
    }
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
        const int seconds = drill.sheet()->restZeit();
        drill.wait(seconds * 1000 - lead);
        ASSERT_NE(drill.sheet(), nullptr);
        EXPECT_EQ(drill.caption("stop_uhr"), "W4610 W39410 W480");
        drill.click("CmdNextAufg");
        drill.wait(lead + 400);
        expectHome(drill);
        EXPECT_EQ(drill.total, "0.0%");
    }
}

TEST(TryingOut, CountsAndScoresNothing) {
    DrillFixture drill;
    drill.run();
    for (const bool right : {true, false, true}) doTask(drill, right);
    EXPECT_EQ(drill.caption("zaehler", 0), "2");
    EXPECT_EQ(drill.caption("zaehler", 1), "4");
    for (int slot = 0; slot <= 20; ++slot)
        for (int x = 0; x <= 6; ++x) EXPECT_EQ(drill.wertung.auswertung.read(slot, x), 0);
    drill.click("zurueck");
    expectHome(drill);
    EXPECT_TRUE(drill.dialogs.questions.empty());
    EXPECT_TRUE(drill.rows.empty());
}

TEST(AutomaticStepping, TheNextTaskComesByItself) {
    DrillFixture drill;
    drill.z.abfrage = 1;
    drill.run();
    int tasks = 0;
    const auto watch = drill.sheet()->ereignis.connect([&](Arbeitsblatt1::Ereignis turn) {
        tasks += turn == Arbeitsblatt1::Ereignis::AufgabeGezogen ? 1 : 0;
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
    drill.wait(1900);
    EXPECT_EQ(tasks, 2);
    EXPECT_FALSE(drill.control("LbNextAufg").visible());
}

TEST(Run, OneThatCouldOnlyRepeatItselfIsReportedAndLeft) {
    DrillFixture drill;
    drill.choose({3});
    drill.z.final = 1;
    drill.run();
    drill.wait(1000);
    EXPECT_EQ(drill.sheet(), nullptr);
    ASSERT_EQ(drill.host.faults.size(), 1U);
    EXPECT_EQ(drill.host.faults[0].at(0).text(), "zepha9.start_timer.arbeitsblatt1");
    EXPECT_EQ(drill.dialogs.messages.size(), 1U);
}

TEST(Run, AnotherActivationDoesNotBeginItAnew) {
    DrillFixture drill;
    drill.run();
    doTask(drill, true);
    drill.programm.forms.show("arbeitsblatt1");
    drill.wait(1000);
    EXPECT_EQ(drill.caption("zaehler", 0), "1");
}

}  // namespace
}  // namespace determine
