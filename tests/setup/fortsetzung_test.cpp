// A training that is left, kept by the host, and continued by another start of the program.
#include "core/fortsetzung.h"

#include "setup/set_up.h"

namespace setup::test {

namespace {

using core::Value;

struct Fortsetzung : OnHost {
    /// A training of chosen scales, left and kept after a few tasks.
    std::map<int, int> saved() {
        Practice first(host);
        first.combo("skal_typ_cmb").setListIndex(2);
        first.combo("temp_Combo").setListIndex(9);
        first.combo("CmbOktAnz").setListIndex(1);
        first.combo("CmbOktBer").setListIndex(2);
        first.pick({5, -5, 2, -2, 7, -7});
        first.mode(1);
        first.begin();
        for (const bool right : {true, false, true, false}) first.task(right);
        auto weights = first.weights();
        first.leave(true);
        EXPECT_EQ(first.dialogs.questions.back(), "W8|W495");
        EXPECT_EQ(first.offered(), "W565") << "offered at once";
        return weights;
    }
    Value& record(const std::string& key) { return host.records.at("zepha9/" + key); }
};

TEST_F(Fortsetzung, AnotherStartGoesOnWhereTheTrainingWasLeft) {
    auto weights = saved();
    for (int start = 0; start < 2; ++start) {
        Practice run(host);
        run.mode(2);
        EXPECT_EQ(run.z.uebungsmodus, 2);
        EXPECT_EQ(run.z.skal_typ, 2);
        EXPECT_EQ(run.z.tempoIdx, 9);
        EXPECT_EQ(run.z.FrquMinAkt, 60);
        EXPECT_EQ(run.z.FrquMaxAkt, 96);
        ASSERT_EQ(run.list(1).count(), 6);
        EXPECT_EQ(run.list(1).item(0).data, 2) << "in catalogue order";
        for (const int i : {5, 4, 9, 10, 7, 0, 2, 1, 3, 11}) EXPECT_FALSE(run.group(i).enabled());
        run.begin();
        EXPECT_EQ(run.weights(), weights);
        EXPECT_EQ(run.caption("zaehler", 0), std::to_string(4 + start));
        EXPECT_EQ(run.caption("zaehler", 1), "2");
        float tasks = 0;
        for (int slot = 1; slot <= 16; ++slot) tasks += run.drill.wertung.auswertung.read(slot, 0);
        EXPECT_EQ(tasks, 4 + start);
        run.task(true);
        weights = run.weights();
        run.leave(true);
    }
    Practice last(host);
    last.mode(2);
    last.begin();
    while (last.on<form::Button>("CmdNextAufg").usable()) last.task(true);
    EXPECT_EQ(record("A1"), Value(Value::Array{"False"})) << "a training that ended is not kept";
    EXPECT_EQ(last.offered(), core::keineFortsetzung);
}

TEST_F(Fortsetzung, NothingIsAskedOrKeptWithoutReason) {
    Practice drill(host);
    for (const auto& [mode, tasks] : {std::pair{1, 0}, {0, 1}, {1, 1}}) {
        EXPECT_TRUE(drill.dialogs.questions.empty()) << "no task closed; no training";
        drill.mode(mode);
        drill.begin();
        if (tasks == 1) drill.task(true);
        drill.leave(tasks == 0);
    }
    EXPECT_EQ(drill.dialogs.questions.size(), 1U);
    EXPECT_FALSE(host.records.contains("zepha9/A1") || host.records.contains("zepha9/E1"));
}

/// The choices of a run are one press away in the next; an exam's own choices are not overwritten.
TEST_F(Fortsetzung, TheLastChoicesAreTakenUpByOnePress) {
    {
        Practice first(host);
        EXPECT_FALSE(first.button("asLastTime").visible()) << "there was no run";
        first.option("abfolge", 1).click();
        first.combo("skal_typ_cmb").setListIndex(1);
        first.combo("ComboPatch").setListIndex(40);
        first.option("stimm_g", 2).click();
        first.pick({1, 2, 4});
        first.mode(1);
        first.begin();
        first.leave();
    }
    Practice next(host);
    next.combo("skal_typ_cmb").setListIndex(5);
    next.button("asLastTime").click();
    const core::Zustand& z = next.z;
    EXPECT_EQ((std::array<int, 6>{z.uebungsmodus, z.skal_typ, z.abfolge, z.richtung, z.stimmung,
                                  z.patch[8]}),
              (std::array<int, 6>{1, 1, 1, 0, 2, 40}));
    EXPECT_EQ(next.list(1).count(), 3);
    EXPECT_TRUE(next.usable("cmdOK"));
    next.mode(4);
    next.combo("prfnr_Comb").setListIndex(4);
    next.begin();
    next.leave();
    next.mode(0);
    next.button("forBeginners").click();
    EXPECT_TRUE(next.usable("cmdOK"));
    EXPECT_EQ(next.list(1).count(), 3);
    EXPECT_EQ(z.final, 1);
    next.button("asLastTime").click();
    EXPECT_EQ((std::array<int, 4>{z.uebungsmodus, z.prfNr, z.tempoIdx, z.ska_ausw}),
              (std::array<int, 4>{4, 5, 7, 0}));
}

/// A host that goes in the middle of saving, or refuses, leaves no half training behind.
TEST_F(Fortsetzung, AHalfSavedTrainingIsNeverOffered) {
    saved();
    for (int stores = 0; stores < 3; ++stores) {
        SCOPED_TRACE(stores);
        rehearsal::MemoryHost copy;
        copy.records = host.records;
        {
            Practice drill(copy);
            drill.mode(1);
            drill.begin();
            drill.task(true);
            copy.storesUntilGone = stores;
            drill.leave(true);
            EXPECT_EQ(drill.offered(), core::keineFortsetzung);
            EXPECT_TRUE(drill.form("frmMessage").visible()) << "told each time";
        }
        copy.storesUntilGone.reset();
        copy.gone = false;
        EXPECT_EQ(Practice(copy).offered(), stores == 0 ? "W565" : core::keineFortsetzung)
            << "before the first store the older training stands";
    }
}

TEST_F(Fortsetzung, ATrainingThatCannotBeTakenUpIsToldLeftAloneAndOfferedNoMore) {
    saved();
    Practice desk(host);
    desk.mode(2);
    auto array = record("A1").items();
    array.pop_back();
    record("A1") = array;
    desk.begin();
    desk.wait(1000);
    EXPECT_FALSE(desk.running());
    ASSERT_EQ(host.faults.size(), 1U);
    EXPECT_EQ(host.faults[0].at(0).text(), "zepha9.start_timer.arbeitsblatt1");
    EXPECT_EQ(record("A1"), Value(array)) << "nothing is overwritten";
    EXPECT_EQ(desk.offered(), core::keineFortsetzung);
    EXPECT_EQ(desk.z.uebungsmodus, 1);
}

TEST_F(Fortsetzung, TheOrderOfTonesOnTheFormDoesNotMatter) {
    const Value::Array scale{"0", "1", "1", "2", "0", "2", "0", "1", "0", "1", "- W344", "- W203"};
    const Value::Array melody{"0", "0", "1", "2", "0", "2", "0", "1", "1", "1", "W344", "W203"};
    host.records["zepha9/E1"] = host.records["zepha9/A1"] = Value::Array{"true", ""};
    for (const bool saved : {false, true}) {
        SCOPED_TRACE(saved ? "melody" : "scale");
        host.records["zepha9/E1b"] = saved ? melody : scale;
        Practice theory(host, Way{true, 1});
        theory.option("abfolge", saved ? 0 : 1).click();
        theory.mode(2);
        EXPECT_EQ(theory.z.uebungsmodus, 2);
        EXPECT_EQ(theory.z.abfolge, saved ? 1 : 0);
        EXPECT_EQ(theory.z.richtung, saved ? 0 : 1);
        EXPECT_EQ(theory.list(1).count(), 2);
        EXPECT_TRUE(theory.button("cmdOK").enabled());
    }
}

TEST_F(Fortsetzung, SettingsThatDoNotFitBecomeANewTraining) {
    saved();
    for (const auto& [element, text] :
         {std::pair{0, "7"}, {2, "-1"}, {3, ""}, {5, "9"}, {6, "3"}, {8, "x"}, {11, "900"}}) {
        SCOPED_TRACE(element);
        rehearsal::MemoryHost copy;
        copy.records = host.records;
        auto array = record("E1").items();
        array[static_cast<std::size_t>(element)] = text;
        copy.records["zepha9/E1"] = array;
        Practice drill(copy);
        drill.mode(2);
        EXPECT_EQ(drill.z.uebungsmodus, 1);
        EXPECT_EQ(drill.z.tempoIdx, element == 0 ? 1 : 9) << "what was restored stays";
        EXPECT_TRUE(drill.group(5).enabled());
        EXPECT_TRUE(drill.dialogs.messages.empty());
    }
    host.language = "English";
    Practice drill(host);
    drill.mode(2);
    EXPECT_EQ(drill.list(1).count(), 0) << "words of another language are not found";
    EXPECT_FALSE(drill.button("cmdOK").enabled());
}

}  // namespace

}  // namespace setup::test
