// The ends of a run: what stays on the screen, what may be repeated, what a fault changes.
#include "base/colour.h"
#include "engine/arbeitsblatt.h"
#include "notation/schreib_blatt.h"
#include "setup/set_up.h"

#include <vector>

namespace setup::test {

namespace {

using engine::AufgZustand;

struct Lauf : Practice {
    using Practice::Practice;

    engine::Arbeitsblatt& sheet() { return dynamic_cast<engine::Arbeitsblatt&>(form(way.sheet())); }
    template <class C>
    C& on(const std::string& name, int index = form::Place::noIndex) {
        return get<C>(name, index, way.sheet());
    }
    bool there() { return drill.programm.forms.loaded(way.sheet()) != nullptr; }
    /// Two scales upward, so that exams and trainings are short.
    void begin(int mode) {
        option("ska_ausw", 0).click();
        combo("Combo_richtung").setListIndex(0);
        combo("temp_Combo").setListIndex(9);
        option("ska_ausw", 1).click();
        for (const int code : {1, 4}) pick(code);
        combo("training_Combo").setListIndex(mode);
        button("cmdOK").click();
        loop.advance(50);
    }
    void task() {
        on<form::Button>("CmdNextAufg").click();
        while (!on<form::Picture>("ton_art", z.skala_nr).usable()) loop.advance(100);
    }
    /// Answers right until the run is over.
    void toTheEnd() {
        for (int i = 0; i < 99; ++i) {
            task();
            on<form::Picture>("ton_art", z.skala_nr).click();
            if (sheet().aufgZustand() != AufgZustand::Geschlossen) return;
            if (z.abfrage == 1) loop.advance(1800);
        }
        ADD_FAILURE() << "the run does not end";
    }
};

struct Leaving : ::testing::Test {
    support::FakeHost host;
};

TEST_F(Leaving, TheWorksheetStaysUntilTheResultHasCome) {
    for (const int mode : {1, 3}) {
        SCOPED_TRACE(mode);
        Lauf run(host);
        run.begin(mode);
        run.toTheEnd();
        EXPECT_EQ(run.sheet().aufgZustand(),
                  mode == 1 ? AufgZustand::TrainingBeendet : AufgZustand::PruefungBeendet);
        // A training may still be heard again; in an exam nothing appears and nothing goes.
        EXPECT_TRUE(run.on<form::Panel>("wieder").visible());
        EXPECT_FALSE(run.on<form::Panel>("wieder").enabled());
        EXPECT_EQ(run.on<form::Panel>("wieder2").visible(), mode == 1);
        EXPECT_EQ(run.on<form::Panel>("wieder2").enabled(), mode == 1);

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
        EXPECT_FALSE(run.there());
        EXPECT_TRUE(run.form("einstellung1").visible());
    }
}

TEST_F(Leaving, OnlyAFaultThatTheRunCannotBearEndsIt) {
    Lauf run(host);
    run.begin(0);
    run.task();
    run.help.broken = true;
    run.on<form::Button>("cmdHilfe").click();
    EXPECT_FALSE(run.sheet().key({form::Key::Kind::Digit, 9}));
    run.sheet().guard("key.", [&] {
        run.sheet().setPointer(form::Pointer::Hourglass);
        throw std::runtime_error("broken");
    });
    EXPECT_EQ(run.dialogs.messages.size(), 2U);
    EXPECT_TRUE(run.there());
    EXPECT_EQ(run.sheet().pointer(), form::Pointer::Arrow);
    run.on<form::Picture>("ton_art", run.z.skala_nr).click();
    EXPECT_EQ(run.sheet().aufgZustand(), AufgZustand::Geschlossen) << "the run goes on";
    run.z.tempoIdx = 99;  // the task cannot be played
    run.on<form::Button>("CmdNextAufg").click();
    run.loop.advance(500);
    EXPECT_FALSE(run.there());
}

TEST_F(Leaving, APaletteKeepsItsColoursToTheEnd) {
    Lauf run(host, Practice::Way{false, 4});
    run.button("cmdOK").click();
    run.loop.advance(50);
    run.on<form::Button>("CmdNextAufg").click();
    while (!run.on<form::Button>("cmdOK").usable()) run.loop.advance(100);
    const auto open = run.on<form::Group>("grdnot", 0).backColour();
    base::Colour last{};
    const form::Connection made = run.drill.programm.forms.gone.connect([&](form::Form& form) {
        last = static_cast<form::Group*>(form.find("grdnot", 0))->backColour();
    });
    run.on<form::Panel>("zurueck").click();
    EXPECT_EQ(last, open);
}

TEST_F(Leaving, NoRunGoesOnWithTheChanceOfAnExam) {
    const auto tasks = [](Lauf& run, int mode, int number) {
        run.combo("training_Combo").setListIndex(mode);
        run.z.zufallsNr = number;
        run.button("cmdOK").click();
        run.loop.advance(50);
        std::vector<std::pair<int, int>> drawn;
        for (int i = 0; i < 4; ++i) {
            run.loop.advance(1800);
            while (!run.on<form::Picture>("ton_art", run.z.skala_nr).usable())
                run.loop.advance(100);
            drawn.emplace_back(run.z.skala_nr, run.sheet().aufgabe().noten[0]);
            run.on<form::Picture>("ton_art", run.z.skala_nr).click();
        }
        run.on<form::Panel>("zurueck").click();
        run.loop.advance(500);
        return drawn;
    };
    Lauf run(host), other(host);
    const auto exam = tasks(run, 4, 5);
    EXPECT_NE(exam, tasks(other, 4, 6));
    EXPECT_EQ(tasks(run, 0, 0), tasks(other, 0, 0)) << "the clock decides, not the exam before";
    EXPECT_EQ(exam, tasks(run, 4, 5)) << "an exam with a number repeats its tasks";
}

}  // namespace

}  // namespace setup::test
