#include "sim/bare_runs.h"
#include "sim/traced_run.h"
#include "sim/usage_error.h"

#include <gtest/gtest.h>
#include <pugixml.hpp>

namespace sim::test {

namespace {

TEST(Simulation, EndsAsTheLearnerAndTheModeLetIt) {
    struct Row {
        const char* name;
        const char* line;
        Ending ending;
    };
    for (const Row& row : {
             Row{"training, perfect", "--set uebungsmodus=1", Ending::Goal},
             Row{"training, wrong", "--set uebungsmodus=1 --learner wrong", Ending::Failed},
             Row{"training, too slow to earn anything",
                 "--set uebungsmodus=1 --learner slow:60 --tasks 30", Ending::Left},
             Row{"try-out", "--tasks 7 --learner random:0.5", Ending::Left},
             Row{"only one task", "--set einzel_wahl=2 --set final=1 --set uebungsmodus=1",
                 Ending::Fault},
         }) {
        SCOPED_TRACE(row.name);
        const TracedRun run(row.line);
        EXPECT_STREQ(endingName(run.outcome.ending), endingName(row.ending));
        EXPECT_EQ(run.outcome.fault.empty(), row.ending != Ending::Fault) << run.outcome.fault;
        EXPECT_EQ(run.lines("end").at(0)["reason"].toString(), endingName(row.ending));
        EXPECT_EQ(run.lines("task").size(), static_cast<std::size_t>(run.outcome.tasks));
    }
}

TEST(Simulation, CountsWhatTheLearnerDid) {
    const TracedRun perfect("--set uebungsmodus=4 --set abfrage=1 --set an_zeig=1");
    EXPECT_EQ(perfect.outcome.ending, Ending::Count);
    EXPECT_EQ(perfect.outcome.tasks, perfect.lines("run")[0]["pruefAufgaben"].toInt());
    EXPECT_EQ(perfect.outcome.rightFirst, perfect.outcome.tasks);
    EXPECT_EQ(perfect.outcome.total, "100.0%");
    EXPECT_FALSE(perfect.outcome.bar);

    const TracedRun wrong("--set uebungsmodus=1 --learner wrong");
    EXPECT_EQ(wrong.outcome.rightFirst, 0);
    EXPECT_EQ(wrong.outcome.bar, 100);
    EXPECT_GT(wrong.outcome.meanWeight, 4);
    const auto closed = wrong.lines("closed");
    int weight = 0;
    for (const auto& row : closed.front()["weights"].toArray()) weight += row.toArray()[1].toInt();
    EXPECT_EQ(weight, closed.front()["matbox_zahl"].toInt());
    EXPECT_EQ(closed.back()["FloodPercent"].toInt(), 100);

    const TracedRun slow("--set uebungsmodus=4 --set abfrage=1 --learner slow:8");
    EXPECT_EQ(slow.outcome.ending, Ending::Clock);
    int rest = slow.lines("run")[0]["restZeit"].toInt();
    for (const auto& line : slow.lines("clock")) EXPECT_EQ(line["restZeit"].toInt(), rest -= 10);
    EXPECT_EQ(rest, 0);
    for (const auto& line : slow.lines("answer")) EXPECT_EQ(line["AntwDau"].toInt(), 80);

    const TracedRun half("--tasks 400 --learner random:0.5");
    EXPECT_NEAR(half.outcome.rightFirst, 200, 40);
}

TEST(Simulation, OneRunAfterTheOtherStartsAfresh) {
    for (const char* road : {"", "--through-setup"}) {
        const Options given =
            options(std::string("--set uebungsmodus=1 --learner random:0.9 ") + road);
        Simulation simulation(given);
        for (int i = 0; i < 3; ++i) {
            SCOPED_TRACE(road + std::to_string(i));
            const Outcome outcome = simulation.run();
            EXPECT_EQ(outcome.ending, Ending::Goal);
            pugi::xml_document record;
            ASSERT_TRUE(record.load_string(simulation.record().c_str()));
            EXPECT_EQ(static_cast<int>(record.select_nodes("//lesson").size()), outcome.tasks);
        }
    }
}

TEST(Simulation, TheRoadThroughTheFormsLeadsToTheSameTasks) {
    for (const char* choices :
         {"--set uebungsmodus=1 --set richtung=0 --set tempoIdx=4 --set oktAnz=2 --set "
          "FrquMinAkt=36",
          "--set uebungsmodus=3 --set abfrage=1 --set skal_typ=4 --set final=1 --set an_zeig=0",
          "--tasks 20 --set abfolge=1 --set richtung=0 --set stimmung=1 --set frequenz=1",
          "--set uebungsmodus=4 --set prfNr=2 --set tempoIdx=3 --set richtung=1 --set abfrage=1"}) {
        SCOPED_TRACE(choices);
        const TracedRun direct(std::string(choices) + " --learner random:0.8");
        const TracedRun road(std::string(choices) + " --learner random:0.8 --through-setup");
        QJsonObject fields = direct.lines("run").at(0), shown = road.lines("run").at(0);
        fields.remove("prfNr");  // stands at the first exam on the form, chosen or not
        shown.remove("prfNr");
        EXPECT_EQ(fields, shown);
        const auto wanted = direct.lines("task"), drawn = road.lines("task");
        ASSERT_EQ(wanted.size(), drawn.size());
        for (std::size_t i = 0; i < wanted.size(); ++i)
            EXPECT_EQ(wanted[i]["noten"], drawn[i]["noten"]);
        EXPECT_EQ(direct.outcome.total, road.outcome.total);
    }
}

/// Writes down what a bare run asks and what is answered.
struct Noted final : engine::RunRecorder {
    std::vector<std::vector<int>> tasks;
    std::vector<int> answers;
    void task(const engine::Task& a) override {
        tasks.emplace_back();
        for (int i = 0; i < a.tonAnz; ++i) tasks.back().push_back(a.noten[i]);
        tasks.back().push_back(a.akt_richtung);
    }
    void answer(const engine::Task&, const engine::Answer& answer) override {
        answers.push_back(answer.index);
    }
    void anotherTry(base::i16) override {}
};

TEST(BareRuns, AreThoseOfTheForms) {
    for (const char* choices :
         {"--set uebungsmodus=1 --learner random:0.7", "--set uebungsmodus=1 --learner wrong",
          "--set uebungsmodus=4 --learner confuse:0:3 --set abfolge=1 --set richtung=0",
          "--tasks 20 --set ska_ausw=1 --set einzel_wahl=1,-1,4 --learner random:0.4",
          "--form arbeitsblatt1b --set uebungsmodus=1 --learner slow:4 --tasks 30 --keep",
          "--form arbeitsblatt4 --set uebungsmodus=1 --learner random:0.8 --tasks 40 --keep",
          "--form arbeitsblatt4 --set uebungsmodus=1 --learner enharmonic --tasks 20",
          "--form arbeitsblatt4b --set uebungsmodus=3 --learner random:0.8",
          "--set einzel_wahl=2 --set final=1 --set uebungsmodus=1"}) {
        SCOPED_TRACE(choices);
        TracedRun forms(choices);
        Noted noted;
        BareRuns bare(forms.given, &noted);
        for (int run = 0; run < 2; ++run) {
            const Outcome outcome = bare.run();
            if (run > 0) forms.outcome = forms.simulation.run();
            EXPECT_STREQ(endingName(outcome.ending), endingName(forms.outcome.ending));
            EXPECT_EQ(outcome.tasks, forms.outcome.tasks);
            EXPECT_EQ(outcome.rightFirst, forms.outcome.rightFirst);
            EXPECT_EQ(outcome.meanWeight, forms.outcome.meanWeight);
            EXPECT_EQ(outcome.bar, forms.outcome.bar);
        }
        std::vector<std::vector<int>> tasks;
        std::vector<int> answers;
        forms.text = forms.stream.str();
        for (const auto& line : forms.lines("task")) {
            tasks.emplace_back();
            for (const auto& note : line["noten"].toArray()) tasks.back().push_back(note.toInt());
            tasks.back().push_back(line["akt_richtung"].toInt());
        }
        for (const auto& line : forms.lines("answer")) answers.push_back(line["index"].toInt());
        EXPECT_EQ(noted.tasks, tasks);
        EXPECT_EQ(noted.answers, answers);
    }
}

TEST(Simulation, WhatTheFormsDoNotOfferIsAnError) {
    for (const char* choice : {"zufallsNr=3", "FrquMinAkt=40", "prfNr=0 --set uebungsmodus=4",
                               "richtung=1 --set uebungsmodus=4", "stimmung=1 --set skal_typ=6"}) {
        SCOPED_TRACE(choice);
        const Options given = options(std::string("--through-setup --tasks 1 --set ") + choice);
        Simulation simulation(given);
        EXPECT_THROW(simulation.run(), UsageError);
    }
}

}  // namespace

}  // namespace sim::test
