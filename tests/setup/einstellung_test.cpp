// The set-up form as a user meets it: what each choice stores, locks and forces.
#include "setup/set_up.h"

#include <gtest/gtest.h>

namespace setup::test {

namespace {

using base::rgb;
constexpr base::Colour gesperrt = rgb(255, 192, 192);
constexpr base::Colour offen = rgb(255, 255, 192);

TEST_F(SetUp, OpensWithItsLoadValues) {
    EXPECT_EQ(z.richtung, 2);
    EXPECT_EQ(z.final, 2);
    EXPECT_EQ(z.tempoIdx, 1);
    EXPECT_EQ(z.skal_anz, 6);
    EXPECT_EQ(z.FrquMinAkt, 48);
    EXPECT_EQ(z.FrquMaxAkt, 72);
    EXPECT_EQ(z.prfNr, 1);
    EXPECT_EQ(combo("skal_typ_cmb").count(), 7);
    EXPECT_EQ(combo("ComboPatch").count(), 128);
    EXPECT_EQ(combo("CmbOktAnz").text(), " 2 W41");
    EXPECT_EQ(midi.sentWith(0xC0).size(), 9U) << "the instrument reaches all nine channels";
    EXPECT_FALSE(get<form::Group>("grdeinst", 10).visible());
}

TEST_F(SetUp, TheCategoryDecidesWhatMayBeChosen) {
    struct Row {
        int skal_typ;
        bool namen, vorzeichen, melodie;
    };
    for (const Row& row :
         {Row{0, true, true, true}, Row{1, true, true, true}, Row{2, true, false, false},
          Row{3, true, false, false}, Row{4, false, true, false}, Row{5, true, false, false},
          Row{6, false, false, false}}) {
        SCOPED_TRACE(row.skal_typ);
        combo("skal_typ_cmb").setListIndex(0);
        for (const char* name : {"an_zeig", "abfolge", "stimm_g"}) option(name, 1).click();
        option("final", 0).click();
        combo("skal_typ_cmb").setListIndex(row.skal_typ);
        EXPECT_EQ(usable("an_zeig", 1), row.namen);
        EXPECT_EQ(z.an_zeig, row.namen ? 1 : 0);
        EXPECT_EQ(usable("final", 0), row.vorzeichen);
        EXPECT_EQ(z.final, row.vorzeichen ? 0 : 1);
        EXPECT_EQ(option("final", 1).caption(), row.vorzeichen ? "W240" : "W298");
        EXPECT_EQ(usable("abfolge", 1), row.melodie);
        EXPECT_EQ(z.abfolge, row.melodie ? 1 : 0);
        EXPECT_EQ(usable("stimm_g", 2), row.melodie);
        EXPECT_EQ(z.stimmung, row.melodie ? 1 : 0);
    }
}

TEST_F(SetUp, AChoiceIsStoredEveryTimeAndHasConsequencesOnce) {
    z.an_zeig = z.stimmung = 1;  // stored by an earlier opening; the controls show others
    combo("skal_typ_cmb").setListIndex(6);
    EXPECT_EQ(z.an_zeig, 0);
    EXPECT_EQ(z.stimmung, 0);
    combo("skal_typ_cmb").setListIndex(0);
    combo("Combo_richtung").setListIndex(1);
    z.abfolge = 1;
    option("abfolge", 0).click();
    EXPECT_EQ(z.abfolge, 0);
    EXPECT_EQ(z.richtung, 1) << "the direction stays";
    option("ska_ausw", 1).click();
    pick(-3);
    pick(-5);
    z.ska_ausw = 0;
    option("ska_ausw", 1).click();
    EXPECT_EQ(z.ska_ausw, 1);
    EXPECT_EQ(list(1).count(), 2) << "what was picked stays";
}

TEST_F(SetUp, AMelodyHasNoDirection) {
    option("abfolge", 1).click();
    EXPECT_EQ(z.richtung, 0);
    EXPECT_FALSE(combo("Combo_richtung").visible());
    option("abfolge", 0).click();
    EXPECT_EQ(z.richtung, 2) << "not what it was, but both";
    EXPECT_TRUE(combo("Combo_richtung").visible());
}

TEST_F(SetUp, TheRangeOffersWhatItsSizeLeaves) {
    for (int groesse = 0; groesse < 4; ++groesse) {
        SCOPED_TRACE(groesse);
        combo("CmbOktAnz").setListIndex(groesse);
        EXPECT_EQ(combo("CmbOktBer").count(), 4 - groesse);
        EXPECT_EQ(combo("CmbOktBer").listIndex(), groesse < 3 ? 1 : 0);
        for (int i = 0; i < 4 - groesse; ++i) {
            combo("CmbOktBer").setListIndex(i);
            EXPECT_EQ(z.FrquMinAkt, 36 + 12 * i);
            EXPECT_EQ(z.FrquMaxAkt, z.FrquMinAkt + 12 * (groesse + 2));
            EXPECT_LE(z.FrquMaxAkt, 96);
        }
    }
}

TEST_F(SetUp, AnExamSetsAndLocksWhatItFixes) {
    struct Row {
        int prfNr, tempo, richtung;
    };
    combo("training_Combo").setListIndex(4);
    for (const Row& row : {Row{1, 3, 0}, Row{2, 3, 1}, Row{3, 3, 2}, Row{4, 5, 2}, Row{5, 7, 2}}) {
        SCOPED_TRACE(row.prfNr);
        combo("prfnr_Comb").setListIndex(row.prfNr - 1);
        EXPECT_EQ(z.prfNr, row.prfNr);
        EXPECT_EQ(z.tempoIdx, row.tempo);
        EXPECT_EQ(z.richtung, row.richtung);
        EXPECT_EQ(z.abfrage, 1);
    }
    for (const int i : {5, 4, 9, 7}) {
        EXPECT_FALSE(get<form::Group>("grdeinst", i).enabled());
        EXPECT_EQ(get<form::Group>("grdeinst", i).backColour(), gesperrt);
    }
    EXPECT_TRUE(get<form::Group>("grdeinst", 3).enabled()) << "the tuning stays free";
    combo("training_Combo").setListIndex(0);
    EXPECT_EQ(z.tempoIdx, 7) << "the preset stays, unlocked";
    EXPECT_EQ(get<form::Group>("grdeinst", 4).backColour(), offen);
    EXPECT_EQ(combo("temp_Combo").backColour(), rgb(0, 0, 255));
    combo("training_Combo").setListIndex(2);
    EXPECT_EQ(z.uebungsmodus, 1) << "nothing to continue: a new training";
    EXPECT_EQ(combo("training_Combo").listIndex(), 1);
}

TEST_F(SetUp, TheRecapTellsWhatWillBeRun) {
    option("frequenz", 0).caption = "fest (a'440 Hz)";
    combo("training_Combo").setListIndex(4);
    combo("skal_typ_cmb").setListIndex(2);
    z.an_zeig = 1;  // stored by an earlier opening; the control shows another
    button("cmdOK").click();
    EXPECT_EQ(z.einst_liste.front(), std::to_string(z.einst_liste.size() - 1));
    EXPECT_EQ(z.einst_liste[1], "Übungsmodus");
    EXPECT_EQ(recap("Nr.:"), "W426 1");
    EXPECT_EQ(recap("Tempo"), "80 (Adagio)");
    EXPECT_EQ(recap("Frequenz"), "fest (a1440 Hz)");
    EXPECT_EQ(recap("Anzeige"), "W157");
    EXPECT_EQ(recap("Vz/Finalis"), "W299");
    EXPECT_EQ(recap("Ska-Richtung"), "W132");
    EXPECT_EQ(recap("Einzel-Auswahl Anzahl"), "-");
    EXPECT_EQ(host.log.back(), "zepha9; prfNr=1");
    EXPECT_TRUE(drill.programm.forms.loaded("arbeitsblatt1"));
    EXPECT_FALSE(drill.programm.forms.loaded("einstellung1")->visible());
}

TEST_F(SetUp, TheSoundCheckPlaysTheRangeInTheTuning) {
    combo("temp_Combo").setListIndex(9);
    for (const int stimmung : {0, 2, 1}) {
        SCOPED_TRACE(stimmung);
        option("stimm_g", stimmung).click();
        midi.sends.clear();
        midi.ended = 0;
        button("klang_contr").click();
        EXPECT_FALSE(button("cmdOK").enabled());
        EXPECT_FALSE(button("klang_contr").enabled());
        const auto notes = midi.noteOns();
        ASSERT_EQ(notes.size(), 6U);
        const auto bends = midi.sentWith(0xE0);
        EXPECT_EQ(bends.size(), stimmung == 0 ? 0U : 6U);
        for (std::size_t i = 0; i < 6; ++i) {
            EXPECT_EQ(notes[i].data1, 48 + static_cast<int>(i) * 4) << "24 semitones by 5, less 1";
            EXPECT_EQ(notes[i].time, static_cast<int>(i) * 300);
            EXPECT_EQ(notes[i].status, 0x90 + (stimmung == 0 ? 0 : static_cast<int>(i) + 1));
        }
        if (stimmung == 2) {
            EXPECT_EQ(bends[1].data2, 64 + 1) << "E in meantone";
        }
        if (stimmung == 1) {
            EXPECT_EQ(bends[2].data2, 64) << "a black key keeps its place";
        }
        loop.advance(3000);
        EXPECT_EQ(midi.ended, 1);
        EXPECT_TRUE(button("cmdOK").enabled());
        EXPECT_TRUE(button("klang_contr").enabled());
    }
}

TEST_F(SetUp, LeavingDuringTheSoundCheckSilencesIt) {
    button("klang_contr").click();
    loop.advance(200);
    button("cmdZurueck").click();
    EXPECT_TRUE(midi.sounding().empty());
    loop.advance(20000);
    EXPECT_FALSE(drill.programm.forms.loaded("einstellung1"));
    EXPECT_TRUE(drill.programm.forms.loaded("grd_einst")->visible());
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(SetUp, ASoundCheckIsClosedWhateverItEndsBehind) {
    const auto closed = [&] {
        return button("klang_contr").enabled() && button("cmdOK").enabled();
    };
    button("klang_contr").click();
    drill.programm.Melden("title", "text");
    loop.advance(20000);
    EXPECT_FALSE(closed()) << "another form is on top";
    drill.programm.forms.unload("frmMessage");
    EXPECT_TRUE(closed());
    button("klang_contr").click();
    option("ska_ausw", 1).click();
    option("ska_ausw", 0).click();  // frees OK
    button("cmdOK").click();
    loop.advance(50);
    get<form::Button>("CmdNextAufg", form::Place::noIndex, "arbeitsblatt1").click();
    get<form::Panel>("zurueck", form::Place::noIndex, "arbeitsblatt1").click();
    loop.advance(500);
    EXPECT_TRUE(closed());
}

TEST_F(SetUp, NoRunBeginsWhenTheUserGoesBackMeanwhile) {
    loop.post([&] { button("cmdZurueck").click(); });
    button("cmdOK").click();
    loop.advance(500);
    EXPECT_FALSE(drill.programm.forms.loaded("arbeitsblatt1"));
    EXPECT_TRUE(drill.programm.forms.loaded("grd_einst")->visible());
    EXPECT_FALSE(drill.programm.forms.loaded("einstellung1"));
}

TEST_F(SetUp, AFailedStartOfARunLeadsBackToTheStartForm) {
    auto& list = get<form::ListBox>("lst_ska", 1);
    for (int i = 1; i <= 16; ++i) list.add("scale", i);
    button("cmdOK").click();
    ASSERT_EQ(host.faults.size(), 1U);
    EXPECT_EQ(host.faults[0].at(0).text(), "zepha9.einstellung1cmdOK_click.");
    EXPECT_EQ(host.faults[0].at(1), core::Value(9));
    EXPECT_EQ(dialogs.messages.back().title, "Melvora 2000");
    EXPECT_EQ(dialogs.messages.back().text, "W720\nW721\nW722\nW723");
    EXPECT_TRUE(drill.programm.forms.loaded("grd_einst")->visible());
}

TEST_F(SetUp, TheVolumeIsTheVelocityOfEveryNote) {
    get<form::Slider>("HSliderVolume").setValue(300);
    EXPECT_EQ(get<form::Label>("lb14", 1).caption(), " 127");
    get<form::Slider>("HSliderVolume").setValue(64);
    button("klang_contr").click();
    EXPECT_EQ(midi.noteOns().front().data2, 64);
}

}  // namespace

}  // namespace setup::test
