// A training that is left, kept by the host, and continued by another start of the program.
#include "core/fortsetzung.h"

#include "setup/set_up.h"

#include <functional>
#include <map>

namespace setup::test {

namespace {

using core::Value;

/// A practice with a worksheet at work.
struct Training : Practice {
    using Practice::Practice;

    void begin() {
        button("cmdOK").click();
        loop.advance(50);
    }
    bool running() { return drill.programm.forms.loaded("arbeitsblatt1") != nullptr; }
    void task(bool right) {
        get<form::Button>("CmdNextAufg", form::Place::noIndex, "arbeitsblatt1").click();
        while (!get<form::Picture>("ton_art", z.skala_nr, "arbeitsblatt1").usable())
            loop.advance(100);
        for (int scale = 0; !right && scale <= z.skal_anz; ++scale)
            if (scale != z.skala_nr && answer(scale)) break;
        answer(z.skala_nr);
        loop.advance(3000);
    }
    bool answer(int scale) {
        auto& picture = get<form::Picture>("ton_art", scale, "arbeitsblatt1");
        const bool open = picture.usable();
        picture.click();
        loop.advance(100);
        return open;
    }
    void leave(bool keep) {
        dialogs.answers = {keep};
        get<form::Panel>("zurueck", form::Place::noIndex, "arbeitsblatt1").click();
        loop.advance(500);
    }
    std::map<int, int> weights() const {
        std::map<int, int> all;
        for (int i = 1; i <= z.potSkala; ++i) all[z.mathaeufgk_box(i, 0)] = z.mathaeufgk_box(i, 1);
        return all;
    }
    std::string shown(const std::string& label, int index = form::Place::noIndex) {
        return get<form::Label>(label, index, "arbeitsblatt1").caption();
    }
};

struct Fortsetzung : ::testing::Test {
    support::FakeHost host;

    /// A training of chosen scales, left and kept after a few tasks.
    std::map<int, int> saved() {
        Training first(host);
        first.combo("skal_typ_cmb").setListIndex(2);
        first.option("stimm_g", 0).click();
        first.combo("temp_Combo").setListIndex(9);
        first.combo("CmbOktAnz").setListIndex(1);
        first.combo("CmbOktBer").setListIndex(2);
        first.option("ska_ausw", 1).click();
        for (const int code : {5, -5, 2, -2, 7, -7}) first.pick(code);
        first.combo("training_Combo").setListIndex(1);
        first.begin();
        for (const bool right : {true, false, true, false}) first.task(right);
        const auto weights = first.weights();
        first.leave(true);
        EXPECT_EQ(first.dialogs.questions.back(), "W8|W495");
        EXPECT_EQ(first.combo("training_Combo").item(2).text, "W565") << "offered at once";
        return weights;
    }
    Value& record(const std::string& key) { return host.records.at("zepha9/" + key); }
};

TEST_F(Fortsetzung, AnotherStartGoesOnWhereTheTrainingWasLeft) {
    const auto weights = saved();
    EXPECT_EQ(record("A1").items().size(), 6U * 6 + 4);
    EXPECT_EQ(record("E1").items().size(), 11U + 1 + 6);

    Training second(host);
    second.combo("training_Combo").setListIndex(2);
    EXPECT_EQ(second.z.uebungsmodus, 2);
    EXPECT_EQ(second.z.skal_typ, 2);
    EXPECT_EQ(second.z.tempoIdx, 9);
    EXPECT_EQ(second.z.FrquMinAkt, 60);
    EXPECT_EQ(second.z.FrquMaxAkt, 96);
    ASSERT_EQ(second.list(1).count(), 6);
    EXPECT_EQ(second.list(1).item(0).data, 2) << "in catalogue order";
    for (const int i : {5, 4, 9, 10, 7, 0, 2, 1, 3, 11})
        EXPECT_FALSE(second.group(i).enabled()) << i;
    second.begin();
    EXPECT_EQ(second.weights(), weights);
    EXPECT_EQ(second.shown("zaehler", 0), "4");
    EXPECT_EQ(second.shown("zaehler", 1), "2");
    int tasks = 0;
    for (int slot = 1; slot <= 16; ++slot)
        tasks += static_cast<int>(second.drill.wertung.auswertung.read(slot, 0));
    EXPECT_EQ(tasks, 4);
    second.task(true);
    EXPECT_EQ(second.shown("zaehler", 0), "5");
    const auto later = second.weights();
    second.leave(true);

    Training third(host);
    third.combo("training_Combo").setListIndex(2);
    third.begin();
    EXPECT_EQ(third.weights(), later);
    for (int i = 0;
         i < 60 &&
         third.get<form::Button>("CmdNextAufg", form::Place::noIndex, "arbeitsblatt1").usable();
         ++i)
        third.task(true);
    EXPECT_EQ(record("A1"), Value(Value::Array{"False"})) << "a training that ended is not kept";
    EXPECT_EQ(third.combo("training_Combo").text(), "W564");
    EXPECT_EQ(third.combo("training_Combo").item(2).text, core::keineFortsetzung);
}

TEST_F(Fortsetzung, NothingIsAskedOrKeptWithoutReason) {
    Training drill(host);
    drill.combo("training_Combo").setListIndex(1);
    drill.begin();
    drill.leave(true);
    drill.combo("training_Combo").setListIndex(0);
    drill.begin();
    drill.task(true);
    drill.leave(true);
    EXPECT_TRUE(drill.dialogs.questions.empty()) << "no task closed; no training";
    drill.combo("training_Combo").setListIndex(1);
    drill.begin();
    drill.task(true);
    drill.leave(false);
    EXPECT_EQ(drill.dialogs.questions.size(), 1U);
    EXPECT_TRUE(host.records.empty());
}

/// A host that goes in the middle of saving, or refuses, leaves no half training behind.
TEST_F(Fortsetzung, AHalfSavedTrainingIsNeverOffered) {
    saved();
    for (int stores = 0; stores < 3; ++stores) {
        SCOPED_TRACE(stores);
        support::FakeHost copy;
        copy.records = host.records;
        {
            Training drill(copy);
            drill.combo("training_Combo").setListIndex(1);
            drill.begin();
            drill.task(true);
            copy.storesUntilGone = stores;
            drill.leave(true);
            EXPECT_EQ(drill.combo("training_Combo").item(2).text, core::keineFortsetzung);
            EXPECT_TRUE(drill.form("frmMessage").visible()) << "told each time";
        }
        copy.storesUntilGone.reset();
        copy.gone = false;
        Training next(copy);
        EXPECT_EQ(next.combo("training_Combo").item(2).text,
                  stores == 0 ? "W565" : core::keineFortsetzung)
            << "before the first store the older training stands";
    }
}

TEST_F(Fortsetzung, ARecordThatDoesNotFitIsRefusedAsAWhole) {
    saved();
    struct Row {
        const char* name;
        std::function<void(Value::Array&)> spoil;
    };
    const Row rows[] = {
        {"too short", [](auto& a) { a.pop_back(); }},
        {"too long", [](auto& a) { a.resize(a.size() + 6, "1"); }},
        {"no such scale", [](auto& a) { a[1] = "9"; }},
        {"scale 0", [](auto& a) { a[1] = "0"; }},
        {"a scale twice", [](auto& a) { a[1] = a[2]; }},
        {"no number", [](auto& a) { a[8] = "x"; }},
        {"beyond 16 bits", [](auto& a) { a[8] = "70000"; }},
        {"nothing left to train",
         [](auto& a) {
             for (int i = 7; i < 13; ++i) a[i] = "-3";
         }},
        {"long failed", [](auto& a) { a[7] = "30000"; }},
        {"foreign slot", [](auto& a) { a[13] = "15"; }},
        {"score is no number", [](auto& a) { a[15] = "nan"; }},
        {"counter below zero", [](auto& a) { a.back() = "-1"; }},
        {"an array inside", [](auto& a) { a[3] = Value::Array{"1"}; }},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        support::FakeHost copy;
        copy.records = host.records;
        Training drill(copy);
        drill.combo("training_Combo").setListIndex(2);
        auto array = record("A1").items();
        row.spoil(array);
        copy.records["zepha9/A1"] = array;
        drill.begin();
        drill.loop.advance(1000);
        EXPECT_FALSE(drill.running());
        ASSERT_EQ(copy.faults.size(), 1U);
        EXPECT_EQ(copy.faults[0].at(0).text(), "zepha9.start_timer.arbeitsblatt1");
        EXPECT_EQ(copy.records["zepha9/A1"], Value(array)) << "nothing is overwritten";
        EXPECT_EQ(drill.combo("training_Combo").item(2).text, core::keineFortsetzung);
        EXPECT_EQ(drill.z.uebungsmodus, 1);
    }
}

TEST_F(Fortsetzung, TheOrderOfTonesOnTheFormDoesNotMatter) {
    const Value::Array scale{"0", "1", "1", "2", "0", "2", "0", "1", "0", "1", "- W344", "- W203"};
    const Value::Array melody{"0", "0", "1", "2", "0", "2", "0", "1", "1", "1", "W344", "W203"};
    host.records["zepha9/E1"] = host.records["zepha9/A1"] = Value::Array{"true", ""};
    for (const bool saved : {false, true}) {
        SCOPED_TRACE(saved ? "melody" : "scale");
        host.records["zepha9/E1b"] = saved ? melody : scale;
        Practice theory(host, Practice::Way{true, 1});
        theory.option("abfolge", saved ? 0 : 1).click();
        theory.combo("training_Combo").setListIndex(2);
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
        support::FakeHost copy;
        copy.records = host.records;
        Training drill(copy);
        auto array = record("E1").items();
        array[static_cast<std::size_t>(element)] = text;
        copy.records["zepha9/E1"] = array;
        drill.combo("training_Combo").setListIndex(2);
        EXPECT_EQ(drill.z.uebungsmodus, 1);
        EXPECT_EQ(drill.z.tempoIdx, element == 0 ? 1 : 9) << "what was restored stays";
        EXPECT_TRUE(drill.group(5).enabled());
        EXPECT_TRUE(drill.dialogs.messages.empty());
    }
    // Words of another language are not found: the lists stay open to choose from.
    support::FakeHost copy;
    copy.records = host.records;
    copy.language = "English";
    Training drill(copy);
    drill.combo("training_Combo").setListIndex(2);
    EXPECT_EQ(drill.list(1).count(), 0);
    EXPECT_FALSE(drill.button("cmdOK").enabled());
}

}  // namespace

}  // namespace setup::test
