// The worksheets with a staff, from their set-up forms to the record: written and named scales.
#include "setup/set_up.h"
#include "sim/writer.h"

#include <pugixml.hpp>

namespace setup::test {

namespace {

using engine::TaskState;
using sim::Writing;

constexpr Way writing{false, 4}, theoryNaming{true, 1}, theoryWriting{true, 4};

struct Exercise : Practice {
    using Practice::Practice;

    int wrongColumns() {
        return engine::writtenAnswer(task(),
                                     [this](int c) { return sheet().staff()->NotSelb(c).pitch(); })
            .index;
    }
    void handIn(Writing how) {
        do sim::writeScale(sheet(), how, chance);
        while (!on<form::Button>("cmdOK").enabled());  // the same once more cannot be handed in
        on<form::Button>("cmdOK").click();
        loop.advance(10);
    }
    std::vector<int> played(const char* button) {
        on<form::Panel>(button).click();
        loop.advance(500);
        std::vector<int> notes;
        for (const auto& note : midi.noteOns()) notes.push_back(note.data1);
        loop.advance(20000);
        return notes;
    }

    base::Rnd chance{3};
};

using Worksheets = OnHost;

TEST_F(Worksheets, FourWrongAnswersBringTheSolutionToSeeAndToHear) {
    for (const auto& way : {writing, theoryWriting}) {
        SCOPED_TRACE(testing::Message() << "theory " << way.theory << " type " << way.type);
        Exercise run(host, way);
        run.combo("Combo_richtung").setListIndex(0);
        run.mode(1);
        run.begin();
        EXPECT_FALSE(run.ready());
        run.next();
        for (int tries = 1; tries <= 4; ++tries) {
            EXPECT_NE(run.taskState(), TaskState::Closed);
            run.handIn(Writing::Wrong);
            EXPECT_EQ(run.caption("zaehler", 1), std::to_string(tries));
        }
        EXPECT_EQ(run.taskState(), TaskState::Closed);
        EXPECT_EQ(run.wrongColumns(), 0);
        int red = 0;
        for (int c = 1; c <= 6; ++c) red += run.sheet().staff()->NotSelb(c).farbe == 12 ? 1 : 0;
        EXPECT_GE(red, 1);
        EXPECT_FALSE(run.on<form::Group>("pbNoten").enabled());
        EXPECT_FALSE(run.ready()) << "a closed task is not handed in";

        pugi::xml_document document;
        document.load_string(run.drill.xml.text().c_str());
        int lfd = 0;
        for (const auto node : document.select_nodes("//answer")) {
            EXPECT_EQ(node.node().attribute("lfd").as_int(), ++lfd);
            EXPECT_TRUE(node.node().find_child_by_attribute("key", "FalschSkala"));
            EXPECT_EQ(bool(node.node().find_child_by_attribute("key", "Skala")), lfd > 1);
        }
        EXPECT_EQ(lfd, 4);
        if (way.theory) continue;
        const auto solution = run.played("wieder2"), own = run.played("eigene");
        ASSERT_EQ(solution.size(), 8U);
        EXPECT_EQ(own.size(), 8U);
        EXPECT_NE(own, solution);
        for (int k = 0; const int note : solution) EXPECT_EQ(note, run.task().noten[k++]);
        EXPECT_TRUE(run.on<form::Button>("CmdNextAufg").usable());
    }
}

TEST_F(Worksheets, SpellingCountsAsMuchAsSound) {
    Exercise run(host, theoryWriting);
    run.begin();
    int misspelled = 0;
    for (int task = 0; task < 30; ++task) {
        run.next();
        EXPECT_EQ(run.caption("aufg"),
                  run.drill.programm.katalog.skal_name[0][run.task().skala_nr]);
        sim::writeScale(run.sheet(), Writing::Enharmonic, run.chance);
        const bool same = run.wrongColumns() == 0;
        run.on<form::Button>("cmdOK").click();
        EXPECT_EQ(run.taskState() == TaskState::Closed, same);
        misspelled += same ? 0 : 1;
        if (!same) run.handIn(Writing::Right);
        EXPECT_EQ(run.taskState(), TaskState::Closed);
        EXPECT_TRUE(run.midi.noteOns().empty()) << "nothing sounds";
    }
    EXPECT_GT(misspelled, 5);
}

TEST_F(Worksheets, TheoryAndWritingAreSavedUnderTheirOwnKeys) {
    for (const auto& way : {writing, theoryNaming, theoryWriting}) {
        SCOPED_TRACE(testing::Message() << "theory " << way.theory << " type " << way.type);
        std::map<int, int> weights;
        {
            Exercise run(host, way);
            run.mode(1);
            run.begin();
            for (int i = 0; i < 3; ++i) {
                if (way.type == 1) {
                    run.task(true);
                } else {
                    run.next();
                    run.handIn(Writing::Right);
                }
            }
            weights = run.weights();
            run.leave(true);
        }
        const std::string key = std::to_string(way.type) + (way.theory ? "b" : "");
        ASSERT_TRUE(host.records.contains("zepha9/A" + key));
        EXPECT_EQ(host.records["zepha9/E" + key].items().size(), way.theory ? 9U : 11U);
        // The offer looks at the ear-training keys only.
        if (way.theory)
            for (const std::string record : {"zepha9/A", "zepha9/E"})
                host.records[record + std::to_string(way.type)] = host.records[record + key];
        Exercise again(host, way);
        again.mode(2);
        EXPECT_EQ(again.z.uebungsmodus, 2);
        again.begin();
        EXPECT_EQ(again.weights(), weights);
        EXPECT_EQ(again.caption("zaehler", 0), "3");
        host.records.clear();
    }
}

}  // namespace

}  // namespace setup::test
