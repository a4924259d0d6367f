// The set-up form as a user meets it: what each choice stores, locks and forces.
#include "setup/set_up.h"
#include "setup/tone_range.h"

#include <tuple>

namespace setup::test {

namespace {

TEST_F(SetUp, AChoiceIsStoredEveryTimeAndHasConsequencesOnce) {
    option("abfolge", 1).click();
    EXPECT_EQ(z.richtung, 0) << "a melody has no direction";
    EXPECT_FALSE(combo("Combo_richtung").visible());
    option("final", 0).click();
    z.an_zeig = z.stimmung = 1;  // stored by an earlier opening; the controls show others
    combo("skal_typ_cmb").setListIndex(6);
    EXPECT_EQ(z.an_zeig, 0);
    EXPECT_EQ(z.stimmung, 0);
    EXPECT_EQ(z.abfolge, 0);
    EXPECT_EQ(z.richtung, 2) << "both directions again";
    EXPECT_TRUE(combo("Combo_richtung").visible());
    EXPECT_EQ(z.final, 1);
    for (const auto& [name, index] :
         {std::pair{"an_zeig", 1}, {"stimm_g", 1}, {"abfolge", 1}, {"final", 0}})
        EXPECT_FALSE(usable(name, index)) << name;
    combo("skal_typ_cmb").setListIndex(0);
    combo("Combo_richtung").setListIndex(1);
    z.abfolge = 1;
    option("abfolge", 0).click();
    EXPECT_EQ(z.abfolge, 0);
    EXPECT_EQ(z.richtung, 1) << "the direction stays";
    pick({-3, -5});
    z.ska_ausw = 0;
    option("ska_ausw", 1).click();
    EXPECT_EQ(z.ska_ausw, 1);
    EXPECT_EQ(list(1).count(), 2) << "what was picked stays";
    EXPECT_FALSE(usable("skal_typ_cmb")) << "the category is tied to it again";
    z.ska_ausw = 0;
    combo("skal_typ_cmb").setListIndex(1);
    option("ska_ausw", 1).click();
    EXPECT_EQ(list(1).count(), 0) << "scales of another category";
}

TEST_F(SetUp, TheRangeOffersWhatItsSizeLeaves) {
    for (const auto& [branch, smallest, highest] :
         {std::tuple{Zweig::Gehoerbildung, 2, 96}, {Zweig::Musiklehre, 1, 84}}) {
        BareForm bare(drill.programm);
        ToneRange range(bare, drill.programm, branch, bare.groups(0));
        range.fill();
        auto& ranges = bare.get<form::Combo>("CmbOktBer");
        for (int size = 0; size < 4; ++size) {
            bare.get<form::Combo>("CmbOktAnz").setListIndex(size);
            EXPECT_EQ(z.FrquMaxAkt - z.FrquMinAkt, 12 * (smallest + size));
            ranges.setListIndex(0);
            EXPECT_EQ(z.FrquMinAkt, 36);
            ranges.setListIndex(ranges.count() - 1);
            EXPECT_EQ(z.FrquMaxAkt, highest);
        }
    }
}

TEST_F(SetUp, AnExamSetsAndLocksWhatItFixes) {
    mode(4);
    combo("prfnr_Comb").setListIndex(4);
    EXPECT_EQ(z.prfNr, 5);
    EXPECT_EQ(z.tempoIdx, 7);
    EXPECT_EQ(z.abfrage, 1);
    for (const int i : {5, 4, 9, 7}) EXPECT_FALSE(group(i).enabled());
    EXPECT_TRUE(group(3).enabled()) << "the tuning stays free";
    mode(0);
    EXPECT_EQ(z.tempoIdx, 7) << "the preset stays, unlocked";
    EXPECT_TRUE(group(4).enabled());
    mode(2);
    EXPECT_EQ(z.uebungsmodus, 1) << "nothing to continue: a new training";
    EXPECT_EQ(combo("training_Combo").listIndex(), 1);
}

TEST_F(SetUp, TheRecapTellsWhatWillBeRun) {
    option("frequenz", 0).caption = "fest (a'440 Hz)";
    mode(4);
    combo("skal_typ_cmb").setListIndex(2);
    z.an_zeig = 1;  // stored by an earlier opening; the control shows another
    begin();
    const auto& list = z.einst_liste;
    EXPECT_EQ(list.front(), std::to_string(list.size() - 1));
    std::map<std::string, std::string> recap;
    for (std::size_t i = 1; i + 1 < list.size(); i += 2) recap[list[i]] = list[i + 1];
    EXPECT_FALSE(recap.contains("Einzel-Auswahl Anzahl"));
    for (const auto& [label, value] : {std::pair{"Nr.:", "W426 1"},
                                       {"Frequenz", "fest (a1440 Hz)"},
                                       {"Anzeige", "W157"},
                                       {"Vz/Finalis", "W299"}})
        EXPECT_EQ(recap[label], value) << label;
    EXPECT_EQ(host.log.back(), "zepha9; prfNr=1");
    EXPECT_TRUE(running());
    EXPECT_FALSE(setUp().visible());
}

TEST_F(SetUp, TheSoundCheckPlaysTheRangeInTheTuning) {
    combo("temp_Combo").setListIndex(9);
    get<form::Slider>("HSliderVolume").setValue(64);
    for (const int stimmung : {0, 2, 1}) {
        SCOPED_TRACE(stimmung);
        option("stimm_g", stimmung).click();
        midi.sends.clear();
        button("klang_contr").click();
        EXPECT_FALSE(button("cmdOK").enabled());
        EXPECT_FALSE(button("klang_contr").enabled());
        const auto notes = midi.noteOns();
        ASSERT_EQ(notes.size(), 6U);
        const auto bends = midi.sentWith(0xE0);
        ASSERT_EQ(bends.size(), stimmung == 0 ? 0U : 6U);
        for (int i = 0; const auto& note : notes) {
            EXPECT_EQ(note.data1, 48 + i * 4) << "24 semitones by 5, less 1";
            EXPECT_EQ(note.data2, 64) << "the volume";
            EXPECT_EQ(note.time, i * 300);
            EXPECT_EQ(note.status, 0x90 + (stimmung == 0 ? 0 : i + 1));
            ++i;
        }
        if (stimmung == 2) {
            EXPECT_EQ(bends[1].data2, 64 + 1) << "E in meantone";
        }
        if (stimmung == 1) {
            EXPECT_EQ(bends[2].data2, 64) << "a black key keeps its place";
        }
        loop.advance(3000);
        EXPECT_TRUE(button("cmdOK").enabled());
        EXPECT_TRUE(button("klang_contr").enabled());
    }
}

TEST_F(SetUp, InstrumentsSayWhatTheyAreWorthInTheRange) {
    auto& instruments = get<form::Combo>("ComboPatch");
    const auto& hint = get<form::Label>("tonHinweis");
    EXPECT_EQ(instruments.shown(67), "W1087") << "as long as nothing is known";
    midi.worth = [](int program, int, int highest) {
        const bool silent = program == 67 && highest > 80;
        return silent ? sound::Fitness::PartlySilent : sound::Fitness::Fit;
    };
    midi.fitnessKnown();
    EXPECT_EQ(instruments.shown(67), "W1087 ✓");
    instruments.setListIndex(67);
    EXPECT_FALSE(hint.visible());
    get<form::Combo>("CmbOktBer").setListIndex(3);
    EXPECT_EQ(instruments.shown(67), "W1087 ◐ W1330");
    EXPECT_EQ(hint.caption(), "W1333");
    EXPECT_EQ(instruments.text(), "Baritone Sax") << "records say what they always said";
    instruments.setListIndex(0);
    EXPECT_FALSE(hint.visible());
}

TEST_F(SetUp, ASoundCheckIsClosedWhateverItEndsBehind) {
    const auto closed = [&] {
        return button("klang_contr").enabled() && button("cmdOK").enabled();
    };
    button("klang_contr").click();
    programm.Melden("title", "text");
    loop.advance(20000);
    EXPECT_FALSE(closed()) << "another form is on top";
    programm.forms.unload("frmMessage");
    EXPECT_TRUE(closed());
    button("klang_contr").click();
    option("ska_ausw", 1).click();
    option("ska_ausw", 0).click();  // frees OK
    begin();
    on<form::Button>("CmdNextAufg").click();
    leave();
    EXPECT_TRUE(closed());
    button("klang_contr").click();
    loop.advance(200);
    button("cmdZurueck").click();
    EXPECT_TRUE(midi.sounding().empty());
    loop.advance(20000);
    EXPECT_FALSE(loaded("einstellung1"));
    EXPECT_TRUE(form("grd_einst").visible());
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(SetUp, NoRunBeginsWhenTheUserGoesBackMeanwhile) {
    loop.post([&] { button("cmdZurueck").click(); });
    button("cmdOK").click();
    loop.advance(500);
    EXPECT_FALSE(running());
    EXPECT_TRUE(form("grd_einst").visible());
    EXPECT_FALSE(loaded("einstellung1"));
}

TEST_F(SetUp, AFailedStartOfARunLeadsBackToTheStartForm) {
    for (int i = 1; i <= 16; ++i) list(1).add("scale", i);
    button("cmdOK").click();
    ASSERT_EQ(host.faults.size(), 1U);
    EXPECT_EQ(host.faults[0].at(0).text(), "zepha9.einstellung1cmdOK_click.");
    EXPECT_EQ(host.faults[0].at(1), core::Value(9));
    EXPECT_EQ(dialogs.messages.size(), 1U);
    EXPECT_TRUE(form("grd_einst").visible());
}

}  // namespace

}  // namespace setup::test
