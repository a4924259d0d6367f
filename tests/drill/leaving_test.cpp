// The ends of a run: what stays on the screen, what may be repeated, what a fault changes.
#include "base/colour.h"
#include "setup/set_up.h"

#include <vector>

namespace setup::test {

namespace {

using engine::TaskState;

using Leaving = OnHost;

TEST_F(Leaving, TheWorksheetStaysUntilTheResultHasCome) {
    for (const int mode : {1, 3}) {
        SCOPED_TRACE(mode);
        Practice run(host);
        run.combo("Combo_richtung").setListIndex(0);
        run.pick({1, 4});  // so that exams and trainings are short
        run.mode(mode);
        run.begin();
        do run.task(true);
        while (run.taskState() == TaskState::Closed);
        EXPECT_EQ(run.taskState(), mode == 1 ? TaskState::TrainingOver : TaskState::ExamOver);
        // A training may still be heard again; in an exam nothing appears and nothing goes.
        EXPECT_TRUE(run.on<form::Panel>("wieder").visible());
        EXPECT_FALSE(run.on<form::Panel>("wieder").enabled());
        EXPECT_EQ(run.on<form::Panel>("wieder2").visible(), mode == 1);
        EXPECT_EQ(run.on<form::Panel>("wieder2").enabled(), mode == 1);
        if (mode == 1) run.click("wieder2");
        const int left = run.exerciseRun().standing().restZeit;
        run.wait(60000);
        EXPECT_EQ(run.exerciseRun().standing().restZeit, left) << "the clock of an exam stops";
        EXPECT_EQ(run.on("wieder2").usable(), mode == 1) << "as often as wanted";
        EXPECT_FALSE(run.on("CmdNextAufg").usable());

        auto& forms = run.drill.programm.forms;
        std::vector<std::string> seen;
        const auto look = [&](const std::string& when) {
            const auto& back = run.on<form::Panel>("zurueck");
            seen.push_back(when + (run.sheet().visible() ? " sheet" : "") +
                           (back.backColour() == base::colours::magenta ? " magenta" : ""));
        };
        form::Connection shown;
        const form::Connection made = forms.made.connect([&](form::Form& result) {
            look("made:");
            shown = result.changed.connect([&] {
                if (!result.visible()) return;
                look("shown:");
                run.loop.post([&] {
                    look("later:");
                    forms.hide("testergebnis");
                });
            });
        });
        const auto before = run.loop.elapsed();
        run.on<form::Panel>("zurueck").click();
        EXPECT_GE(run.loop.elapsed() - before, 300);
        EXPECT_EQ(seen, (std::vector<std::string>{"made: sheet magenta", "shown: sheet magenta",
                                                  "later: magenta"}));
        EXPECT_FALSE(run.running());
        EXPECT_TRUE(run.setUp().visible());
    }
}

TEST_F(Leaving, ARunBearsTheFaultsOfHelpAndKeys) {
    Practice run(host);
    run.begin();
    run.next();
    run.help.broken = true;
    run.on<form::Button>("cmdHilfe").click();
    run.sheet().guard("key.", [&] {
        run.sheet().setPointer(form::Pointer::Hourglass);
        throw std::runtime_error("broken");
    });
    EXPECT_EQ(run.dialogs.messages.size(), 2U);
    EXPECT_TRUE(run.running());
    EXPECT_EQ(run.sheet().pointer(), form::Pointer::Arrow);
    run.answerRight();
    EXPECT_EQ(run.taskState(), TaskState::Closed) << "the run goes on";
    run.z.tempoIdx = 99;  // the task cannot be played
    run.click("CmdNextAufg");
    run.wait(500);
    EXPECT_FALSE(run.running());
    EXPECT_TRUE(run.setUp().visible());
    EXPECT_EQ(host.faults.back().at(0).text(), "zepha9.MatWahl.arbeitsblatt1");
    EXPECT_EQ(host.faults.back().at(1), core::Value(9));
}

TEST_F(Leaving, APaletteKeepsItsColoursToTheEnd) {
    Practice run(host, Way{false, 4});
    run.begin();
    run.next();
    const auto open = run.on<form::Group>("grdnot", 0).backColour();
    base::Colour last{};
    const form::Connection gone = run.drill.programm.forms.gone.connect([&](form::Form& form) {
        last = static_cast<form::Group*>(form.find("grdnot", 0))->backColour();
    });
    run.on<form::Panel>("zurueck").click();
    EXPECT_EQ(last, open);
}

}  // namespace

}  // namespace setup::test
