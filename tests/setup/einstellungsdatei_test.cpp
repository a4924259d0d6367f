// Settings files: what is written, byte for byte, and what reading back does to the form.
#include "setup/einstellungsdatei.h"

#include "base/whole_file.h"
#include "rehearsal/temp_folder.h"
#include "setup/set_up.h"

#include <fstream>

namespace setup::test {

namespace {

namespace fs = std::filesystem;

/// The set-up form of a teacher, and a folder for its files.
struct Datei : OnHost {
    const rehearsal::TempFolder temporary;
    const fs::path folder = temporary.path();
    Practice teacher{
        Start{.host = &host,
              .call = {.stueckeOrdner = (folder / "Stuecke_Files").string(), .pruefEdit = true}}};

    std::string text() { return EinstellungenText(teacher.setUp(), 1, "für ♭"); }
    void press(const char* form, const char* button) {
        teacher.control<form::Button>(form, button).click();
    }
    /// Saves by the dialog, in which these buttons are pressed.
    void save(const std::vector<const char*>& buttons) {
        auto& forms = teacher.programm.forms;
        const form::Connection dialog = forms.made.connect([&](form::Form& form) {
            if (form.name() != "frmSave") return;
            teacher.loop.post([&] {
                for (const char* button : buttons) press("frmSave", button);
            });
        });
        teacher.button("cmdOptionSave").click();
        EXPECT_FALSE(teacher.loaded("frmSave"));
    }
};

TEST_F(Datei, HoldsTheMarkedChoicesInAnOrderOfTheirOwn) {
    for (const int group : {3, 1, 1}) teacher.mark(group);
    EXPECT_EQ(teacher.group(3).backColour(), base::rgb(128, 255, 128));
    EXPECT_EQ(teacher.group(1).backColour(), base::rgb(255, 255, 192)) << "the mark is off again";
    teacher.option("stimm_g", 2).click();
    EXPECT_EQ(text(),
              "<?xml version=\"1.0\" encoding=\"ISO-8859-1\" ?>\r\n<test>\r\n  <basic>\r\n"
              "    <modul>VESHNA</modul>\r\n    <type>1</type>\r\n"
              "    <description>f\xfcr ?</description>\r\n  </basic>\r\n  <setting>\r\n"
              "    <control title=\"Combo_mt#var\">\r\n      <cname>Combo_mt</cname>\r\n"
              "      <value text=\"W355\">0</value>\r\n    </control>\r\n"
              "    <control title=\"Stimmung\">\r\n      <cname>stimm_g</cname>\r\n"
              "      <index>2</index>\r\n      <value text=\"W401\">True</value>\r\n"
              "    </control>\r\n  </setting>\r\n</test>\r\n");
    teacher.mark(10);
    teacher.pick({4});
    EXPECT_NE(text().find("  <setting>\r\n    <control title=\"Skalen ausgew\xe4hlt\">\r\n"
                          "      <cname>lst_ska</cname>\r\n      <index>1</index>\r\n"
                          "      <value text=\"+ W377\">+ W377</value>\r\n    </control>\r\n"),
              std::string::npos);
    for (const int group : {0, 1, 2, 4, 5, 7, 8, 9, 11, 15}) teacher.mark(group);
    std::string order;
    for (const auto& entry : EinstellungenLesenAus(text()).eintraege)
        order += entry.cname + (entry.hasIndex ? std::to_string(entry.index) : "") + " ";
    EXPECT_EQ(order,
              "lst_ska1 lst_ska0 Combo_mt stimm_g2 skal_typ_cmb temp_Combo an_zeig0 ska_ausw1 "
              "final2 abfrage0 Combo_richtung abfolge0 frequenz0 CmbOktAnz CmbOktBer ");
}

TEST_F(Datei, ReadBackOnAnotherMachineItSetsAndLocks) {
    for (const int group : {0, 1, 2, 3, 4, 5, 7, 11, 15}) teacher.mark(group);
    teacher.combo("skal_typ_cmb").setListIndex(1);
    teacher.combo("temp_Combo").setListIndex(6);
    teacher.option("stimm_g", 1).click();
    teacher.option("final", 0).click();
    teacher.option("abfolge", 1).click();
    teacher.combo("CmbOktBer").setListIndex(0);
    const fs::path file = folder / "a.mvs";
    teacher.dialogs.files = {file.string()};
    save({"cmdSave", "cmdOK"});
    EXPECT_EQ(teacher.dialogs.questions.back(),
              "W841|" + (folder / "Stuecke_Files" / "VESHNA_Set_XX.mvs").string());

    Practice pupil(Start{.host = &host, .call = {.startdatei = file.string()}});
    using Z = core::Zustand;
    for (const auto field : {&Z::skal_typ, &Z::tempoIdx, &Z::stimmung, &Z::final, &Z::abfolge,
                             &Z::FrquMinAkt, &Z::FrquMaxAkt})
        EXPECT_EQ(pupil.z.*field, teacher.z.*field);
    for (const int i : {0, 1, 2, 3, 4, 5, 7, 11, 15}) {
        EXPECT_FALSE(pupil.group(i).enabled()) << i;
        EXPECT_EQ(pupil.group(i).backColour(), base::rgb(255, 192, 192));
    }
    EXPECT_TRUE(pupil.group(9).enabled());
    EXPECT_FALSE(pupil.button("cmdOptionSave").visible());
    pupil.begin();
    EXPECT_TRUE(pupil.running());
}

TEST_F(Datei, TheFirstEntryThatIsNotOfferedEndsTheReading) {
    const auto entry = [](const std::string& name, const std::string& rest) {
        return "<control><cname>" + name + "</cname>" + rest + "</control>";
    };
    struct Row {
        const char* name;
        std::string entry;
        bool goesOn;
    };
    for (const Row& row : {
             Row{"combo beyond its items", entry("skal_typ_cmb", "<value>7</value>"), true},
             Row{"combo below", entry("skal_typ_cmb", "<value>-2</value>"), false},
             Row{"no number", entry("skal_typ_cmb", "<value>x</value>"), false},
             Row{"no value", entry("skal_typ_cmb", ""), false},
             Row{"unknown control", entry("nothing", "<value>0</value>"), false},
             Row{"unknown index", entry("final", "<index>7</index><value>True</value>"), false},
             Row{"other prefix", entry("x:final", "<index>1</index><value>True</value>"), false},
             Row{"a button", entry("klang_contr", "<value>True</value>"), true},
         }) {
        SCOPED_TRACE(row.name);
        Practice s(host);
        EinstellungenAnwenden(
            s.setUp(), EinstellungenLesenAus("<a:test><basic/>" + row.entry +
                                             "<a:control><cname>temp_Combo</cname><value>4</value>"
                                             "</a:control></a:test>"));
        EXPECT_EQ(s.z.tempoIdx, row.goesOn ? 4 : 1);
        EXPECT_EQ(s.z.skal_typ, 0);
        EXPECT_TRUE(s.dialogs.messages.empty());
    }
}

TEST_F(Datei, WhatIsLockedOrShownAlreadyIsSetToo) {
    teacher.z.stimmung = 2;
    std::string tooMany;
    for (int i = 0; i < 16; ++i) tooMany += "<value>a</value>";
    const auto satz = EinstellungenLesenAus(
        "<test><basic/><setting>"
        "<control><cname>ska_ausw</cname><index>1</index><value>True</value></control>"
        "<control><cname>lst_ska</cname><index>1</index>" +
        tooMany +
        "</control>"
        "<control><cname>skal_typ_cmb</cname><value>4</value></control>"
        "<control><cname>an_zeig</cname><index>1</index><value>True</value></control>"
        "<control><cname>stimm_g</cname><index>0</index><value>True</value></control>"
        "<control><cname>temp_Combo</cname><value>-1</value></control>"
        "<control><cname>abfrage</cname><index>1</index><value>True</value></control>"
        "</setting></test>");
    EinstellungenAnwenden(teacher.setUp(), satz);
    EXPECT_EQ(teacher.get<form::Label>("wahlStand").foreColour(), base::colours::red);
    EXPECT_EQ(teacher.z.skal_typ, 4);
    EXPECT_EQ(teacher.z.an_zeig, 1) << "though the category has disabled it";
    EXPECT_EQ(teacher.z.stimmung, 0) << "though it was shown already";
    EXPECT_EQ(teacher.combo("temp_Combo").listIndex(), -1);
    EXPECT_EQ(teacher.z.tempoIdx, 1) << "no choice stores nothing";
    EXPECT_EQ(teacher.z.abfrage, 1);
}

TEST_F(Datei, OnlyWellFormedFilesAreRead) {
    const std::string good = "<test><basic><modul>m</modul></basic></test>";
    for (const std::string& text :
         {good, "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><!-- \xfc -->" + good,
          "<!DOCTYPE test>" + good})
        EXPECT_FALSE(EinstellungenLesenAus(text).leer()) << text;
    for (const std::string& text :
         {std::string(), good + "text", good + good, "<test><basic>a & b</basic></test>" + good,
          std::string("<test><basic><modul>a & b</modul></basic></test>"),
          std::string("<test><basic><modul>a < b</modul></basic></test>"),
          std::string("<test><basic><modul>&unknown;</modul></basic></test>"),
          "<!DOCTYPE test [<!ENTITY a \"b\">]>" + good,
          "<!DOCTYPE test SYSTEM \"x.dtd\"><test><basic><modul>&a;</modul></basic></test>" + good})
        EXPECT_TRUE(EinstellungenLesenAus(text).leer()) << text;
}

TEST_F(Datei, WhatCannotBeWrittenOrReadIsToldWithItsPath) {
    teacher.words.texts = {{"835s", "no settings: %1"}};
    teacher.programm.forms.load("frmLoad");
    std::ofstream(folder / "bad.mvs") << "<a><b></a>";
    teacher.dialogs.files = {(folder / "bad.mvs").string()};
    press("frmLoad", "cmdSave");
    EXPECT_NE(teacher.dialogs.messages.back().text.find("bad.mvs"), std::string::npos);
    EXPECT_EQ(teacher.dialogs.questions.back(), "W839|" + (folder / "Stuecke_Files").string());
    EXPECT_TRUE(fs::is_directory(folder / "Stuecke_Files"));

    EinstellungenSchreiben((folder / "good.mvs").string(), text());
    teacher.dialogs.files = {(folder / "good.mvs").string()};
    press("frmLoad", "cmdSave");
    EXPECT_EQ(teacher.control<form::TextBox>("frmLoad", "txtLoad", 1).text(),
              "VESHNA Typ 1  - für ?");

    std::ofstream(folder / "big.mvs") << std::string(2 << 20, ' ');
    EXPECT_TRUE(EinstellungenLesen((folder / "big.mvs").string()).leer());
    EXPECT_TRUE(EinstellungenLesen(folder.string()).leer());
    EXPECT_EQ(base::readWhole((folder / "good.mvs").string(), 1 << 20), text());

    save({"cmdOK"});
    EXPECT_NE(teacher.dialogs.messages.back().text.find("W889"), std::string::npos) << "no path";
}

TEST_F(Datei, NeitherSettingsNorRecordGetLostSilentlyWithTheirFolder) {
    const std::string gone = (folder / "gone/x").string();
    teacher.words.texts = {{"815s", "no record in %1: free some space"},
                           {"834s", "no settings in %1: choose another folder"}};
    teacher.programm.aufruf.tempOrdner = gone;
    teacher.dialogs.files = {gone + "/exam.mvs"};
    save({"cmdSave", "cmdOK"});
    teacher.begin();
    teacher.wait(500);
    teacher.click("zurueck");
    ASSERT_EQ(teacher.dialogs.messages.size(), 2U);
    const std::string warning = "W720\nW721\nW722\nW723\n\n",
                      reason = " (No such file or directory)";
    EXPECT_EQ(teacher.dialogs.messages[0].text,
              warning + "no settings in " + gone + "/exam.mvs: choose another folder" + reason);
    const std::string file = teacher.drill.xml.datei();
    EXPECT_TRUE(file.starts_with(gone));
    EXPECT_EQ(teacher.dialogs.messages[1].text,
              warning + "no record in " + file + ": free some space" + reason);
}

}  // namespace

}  // namespace setup::test
