// The worksheets with a staff, from their set-up forms to the record: written and named scales.
#include "core/fortsetzung.h"
#include "determine/arbeitsblatt1b.h"
#include "notation/schreib_blatt.h"
#include "setup/set_up.h"
#include "sim/writer.h"

#include <pugixml.hpp>

#include <cstdlib>
#include <map>
#include <set>

namespace setup::test {

namespace {

using core::Value;
using engine::AufgZustand;
using sim::Writing;

constexpr Practice::Way writing{false, 4}, theoryNaming{true, 1}, theoryWriting{true, 4};

struct Exercise : Practice {
    using Practice::Practice;

    Exercise(support::FakeHost& host, const Way& to, int mode) : Practice(host, to) {
        combo("training_Combo").setListIndex(mode);
    }
    void begin() {
        button("cmdOK").click();
        loop.advance(50);
    }
    template <class Sheet = notation::SchreibBlatt>
    Sheet& sheet() {
        return dynamic_cast<Sheet&>(form(way.sheet()));
    }
    template <class C>
    C& on(const std::string& name, int index = form::Place::noIndex) {
        return get<C>(name, index, way.sheet());
    }
    void next() {
        on<form::Button>("CmdNextAufg").click();
        for (int i = 0; i < 300 && !(way.type == 4 && on<form::Button>("cmdOK").usable()); ++i)
            loop.advance(100);
    }
    void write(Writing how) {
        sim::writeScale(sheet(), how, chance);
        on<form::Button>("cmdOK").click();
        loop.advance(10);
    }
    /// Four wrong answers.
    void lose() {
        for (int tries = 1; tries <= 4; ++tries) {
            for (int i = 0; i < 20 && (i == 0 || !on<form::Button>("cmdOK").enabled()); ++i)
                sim::writeScale(sheet(), Writing::Wrong, chance);
            on<form::Button>("cmdOK").click();
            loop.advance(10);
            EXPECT_EQ(on<form::Label>("zaehler", 1).caption(), std::to_string(tries));
        }
    }
    std::map<int, int> weights() {
        std::map<int, int> all;
        for (int i = 1; i <= z.potSkala; ++i) all[z.mathaeufgk_box(i, 0)] = z.mathaeufgk_box(i, 1);
        return all;
    }

    base::Rnd chance{3};
};

struct Worksheets : ::testing::Test {
    support::FakeHost host;
};

TEST_F(Worksheets, FourWrongAnswersBringTheSolutionToSeeAndToHear) {
    for (const auto& way : {writing, theoryWriting}) {
        SCOPED_TRACE(way.sheet());
        Exercise run(host, way, 1);
        run.combo("Combo_richtung").setListIndex(0);
        run.begin();
        auto& sheet = run.sheet();
        EXPECT_FALSE(run.on<form::Button>("cmdOK").usable());
        run.next();
        if (way.theory) {
            EXPECT_EQ(run.on<form::Label>("aufg").caption(),
                      run.drill.programm.katalog.skal_name[0][run.z.skala_nr]);
        }
        run.lose();
        EXPECT_EQ(sheet.aufgZustand(), AufgZustand::Geschlossen);
        EXPECT_EQ(notation::falscheSpalten(sheet.notenzeile(), sheet.erwartung()), 0);
        int red = 0;
        for (int c = 1; c <= 6; ++c) red += sheet.notenzeile().NotSelb(c).farbe == 12 ? 1 : 0;
        EXPECT_GE(red, 1);
        EXPECT_FALSE(run.on<form::Group>("pbNoten").enabled());
        EXPECT_FALSE(run.on<form::Button>("cmdOK").usable()) << "a closed task is not handed in";

        pugi::xml_document document;
        document.load_string(run.drill.wertung.xml.text().c_str());
        const auto answers =
            document.child("exercise").child("lessons").child("lesson").child("answers");
        int lfd = 0;
        for (const auto answer : answers) {
            EXPECT_EQ(answer.attribute("lfd").as_int(), ++lfd);
            EXPECT_TRUE(answer.find_child_by_attribute("key", "FalschSkala"));
            EXPECT_EQ(bool(answer.find_child_by_attribute("key", "Skala")), lfd > 1);
        }
        EXPECT_EQ(lfd, 4);
        if (way.theory) continue;
        const auto played = [&](const char* button) {
            run.on<form::Panel>(button).click();
            run.loop.advance(500);
            std::vector<int> notes;
            for (const auto& note : run.midi.noteOns()) notes.push_back(note.data1);
            run.loop.advance(20000);
            return notes;
        };
        const auto solution = played("wieder2"), own = played("eigene");
        ASSERT_EQ(solution.size(), 8U);
        EXPECT_EQ(own.size(), 8U);
        EXPECT_NE(own, solution);
        for (int k = 0; k < 8; ++k)
            EXPECT_EQ(solution[static_cast<std::size_t>(k)], sheet.aufgabe().noten[k]);
        EXPECT_TRUE(run.on<form::Button>("CmdNextAufg").usable());
    }
}

TEST_F(Worksheets, SpellingCountsAsMuchAsSound) {
    Exercise run(host, theoryWriting, 0);
    run.begin();
    int misspelled = 0;
    for (int task = 0; task < 30; ++task) {
        run.next();
        auto& sheet = run.sheet();
        sim::writeScale(sheet, Writing::Enharmonic, run.chance);
        const bool same = notation::falscheSpalten(sheet.notenzeile(), sheet.erwartung()) == 0;
        run.on<form::Button>("cmdOK").click();
        EXPECT_EQ(sheet.aufgZustand() == AufgZustand::Geschlossen, same);
        misspelled += same ? 0 : 1;
        if (!same) run.write(Writing::Right);
        EXPECT_EQ(sheet.aufgZustand(), AufgZustand::Geschlossen);
        EXPECT_TRUE(run.midi.noteOns().empty()) << "nothing sounds";
    }
    EXPECT_GT(misspelled, 5);
}

/// An exam to its end: the presence mark stands apart from the scores, and every scale of the
/// result counts.
TEST_F(Worksheets, AnExamOfWrittenScalesKeepsTheBest) {
    for (const auto& way : {writing, theoryWriting}) {
        SCOPED_TRACE(way.sheet());
        Exercise run(host, way, 4);
        run.begin();
        const int tasks = run.sheet().pruefAufgaben();
        std::map<int, std::set<int>> keys;
        int signs = 0;
        const auto lookIntoBag = [&] {
            for (int i = 1; i <= run.z.matboxanz; ++i) {
                const int key = run.z.matbox(i, 1);
                signs += std::abs(key);
                EXPECT_TRUE(key != 0 && std::abs(key) <= 6) << key;
                EXPECT_TRUE(keys[std::abs(int(run.z.matbox(i, 0)))].insert(key).second)
                    << "a scale twice in one key";
            }
        };
        lookIntoBag();
        for (int task = 0; task < tasks; ++task) {
            run.loop.advance(2000);
            for (int i = 0; i < 200 && !run.on<form::Button>("cmdOK").usable(); ++i)
                run.loop.advance(100);
            run.write(Writing::Right);
            if (run.sheet().restAufgaben() == tasks / 2) lookIntoBag();
        }
        EXPECT_NEAR(signs / double(tasks), 3.5, 0.7) << "the second half evens out the first";
        EXPECT_EQ(run.sheet().aufgZustand(), AufgZustand::PruefungBeendet);
        const auto& scores = run.drill.wertung.auswertung;
        for (int slot = 1; slot <= 7; ++slot) {
            EXPECT_GE(scores.read(slot, 6), 1);
            EXPECT_GE(scores.read(slot, 0), 1);
            const auto row = results::ergebnisZeile(scores, run.z, slot);
            EXPECT_TRUE(row.zaehlt);
            EXPECT_GT(row.anteil, 0.9F);
        }
    }
}

TEST_F(Worksheets, TheoryAndWritingAreSavedUnderTheirOwnKeys) {
    for (const auto& way : {writing, theoryNaming, theoryWriting}) {
        SCOPED_TRACE(way.sheet());
        const auto task = [](Exercise& run) {
            run.next();
            if (run.way.type == 4) return run.write(Writing::Right);
            run.on<form::Panel>("tonart", run.z.skala_nr).click();
            run.loop.advance(100);
        };
        std::map<int, int> weights;
        {
            Exercise run(host, way, 1);
            run.begin();
            for (int i = 0; i < 3; ++i) task(run);
            weights = run.weights();
            run.dialogs.answers = {true};
            run.on<form::Panel>("zurueck").click();
            run.loop.advance(500);
        }
        const std::string key = std::to_string(way.type) + (way.theory ? "b" : "");
        ASSERT_TRUE(host.records.contains("zepha9/A" + key));
        EXPECT_EQ(host.records["zepha9/E" + key].items().size(), way.theory ? 9U : 11U);
        // The offer looks at the ear-training keys only.
        if (way.theory)
            for (const char* record : {"A", "E"})
                host.records["zepha9/" + std::string(record) + std::to_string(way.type)] =
                    host.records["zepha9/" + (record + key)];
        Exercise again(host, way, 2);
        EXPECT_EQ(again.z.uebungsmodus, 2);
        again.begin();
        EXPECT_EQ(again.weights(), weights);
        EXPECT_EQ(again.on<form::Label>("zaehler", 0).caption(), "3");
        host.records.clear();
    }
}

/// Settings of the other branch have another layout: they are restored until a value does not fit.
/// When all do by chance, no state fits them, and the continuation is offered no more.
TEST_F(Worksheets, SettingsOfTheOtherBranchAreRestoredAsFarAsTheyFit) {
    for (const int tempo : {0, 1, 9})
        for (const int direction : {0, 2}) {
            host.records["zepha9/A1"] = Value::Array{"true", "x"};
            Value::Array settings(11, "0");
            settings[1] = std::to_string(tempo);
            settings[2] = std::to_string(direction);
            host.records["zepha9/E1"] = settings;
            Exercise run(host, theoryNaming, 2);
            const bool fits = tempo < 3 && direction < 2;
            EXPECT_EQ(run.z.uebungsmodus, fits ? 2 : 1);
            EXPECT_EQ(run.z.richtung, tempo < 3 ? tempo : 2) << "read as the direction";
            EXPECT_EQ(run.group(5).enabled(), !fits);
            EXPECT_TRUE(run.dialogs.messages.empty());
            if (!fits) continue;
            run.begin();
            EXPECT_EQ(run.dialogs.messages.size(), 1U);
            EXPECT_TRUE(run.form("einstellung1b").visible());
            EXPECT_EQ(run.form("einstellung1b").pointer(), form::Pointer::Arrow);
            EXPECT_EQ(run.combo("training_Combo").item(2).text, core::keineFortsetzung);
            EXPECT_EQ(run.z.uebungsmodus, 1);
        }
}

TEST_F(Worksheets, TheoryOffersItsOwnRangesAndRecap) {
    Exercise run(host, theoryNaming, 0);
    for (int size = 0; size < 4; ++size) {
        run.combo("CmbOktAnz").setListIndex(size);
        EXPECT_EQ(run.combo("CmbOktBer").count(), 4 - size);
        EXPECT_EQ(run.z.FrquMaxAkt - run.z.FrquMinAkt, 12 * (size + 1));
    }
    EXPECT_EQ(run.z.FrquMaxAkt, 84);
    for (const int group : {11, 15}) EXPECT_FALSE(run.group(group).visible());
    run.begin();
    EXPECT_EQ(run.recap("Tempo"), "-");
    EXPECT_EQ(run.recap("Vz/Finalis"), "W151");
}

}  // namespace

}  // namespace setup::test
