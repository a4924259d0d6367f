#include "results/testergebnis.h"

#include "support/desk.h"

#include <gtest/gtest.h>

namespace results {
namespace {

/// A result form after a training in church modes, shown over a table that a test fills.
struct ResultForm : support::Practice {
    ResultForm() {
        drill.wertung.vorbereiten();
        z.bewertung_basis = 2;
        z.uebungsmodus = 1;
    }
    /// A slot with one task and what it booked.
    void score(int slot, float booked) {
        drill.wertung.auswertung.Save(slot, 0, 1);
        drill.wertung.auswertung.Save(slot, 1, booked);
    }
    Testergebnis& opened() {
        auto& form = static_cast<Testergebnis&>(programm.forms.load("testergebnis"));
        wait(5);
        return form;
    }
    form::Control& part(const std::string& name, int index = form::Place::noIndex) {
        return control("testergebnis", name, index);
    }
};

TEST(Testergebnis, EachRowReadsItsOwnSlotAndTheTotalIsTheMeanOfThoseThatCount) {
    struct Row {
        const char* name;
        int richtung;
        std::size_t rows;
        int slot;              ///< the one that is scored
        std::size_t expected;  ///< row that shows it
    };
    for (const Row& row : {Row{"ascending, last scale", 0, 7, 7, 6},
                           {"descending, first scale", 1, 7, 8, 0},
                           {"both, ascending", 2, 14, 3, 2},
                           {"both, descending", 2, 14, 14, 13}}) {
        SCOPED_TRACE(row.name);
        ResultForm result;
        result.z.richtung = row.richtung;
        result.score(row.slot, -12);
        const auto rows = result.opened().zeilen();
        ASSERT_EQ(rows.size(), row.rows);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            EXPECT_EQ(rows[i].prozent, i == row.expected ? "75.0%" : "0.0 %") << i;
            EXPECT_EQ(rows[i].name, result.programm.katalog.skal_name[0][static_cast<int>(i) % 7]);
        }
        EXPECT_EQ(result.opened().gesamtText(), "75.0%");
        EXPECT_EQ(result.part("Lab_richtung", 1).visible(), row.richtung == 2);
        EXPECT_EQ(result.part("Lab_richtung", 0).caption(), row.richtung == 1 ? "W83" : "W132");
    }
    ResultForm largest;
    largest.category(6);
    for (int slot = 1; slot <= 20; ++slot) largest.score(slot, slot % 2 == 0 ? -16.F : 3.F);
    EXPECT_EQ(largest.opened().zeilen().size(), 20U);
    EXPECT_EQ(largest.opened().gesamtText(), "50.0%");
}

TEST(Testergebnis, ReadsTheSettingsInItsLanguageAndNamesWhoWasLoggedIn) {
    for (const bool known : {true, false}) {
        ResultForm result;
        result.z.angemeldet = known;
        result.z.einst_liste = {"4", "Übungsmodus", "W564", "gewähltes Iv Nr.2", "+ Nr.:"};
        result.words.texts = {{"1005s", "no. %1"}};
        result.opened();
        EXPECT_EQ(result.part("einst_lab", 0).caption(), "W587");
        EXPECT_EQ(result.part("einst_lab", 1).caption(), "no. 2");
        EXPECT_EQ(result.part("einst_Inh", 1).caption(), "+ Nr.:");
        EXPECT_EQ(result.part("g_einst_inh", 1).caption(), "W492");
        EXPECT_EQ(result.part("g_einst_inh", 5).visible(), known);
        EXPECT_EQ(result.part("g_einst_inh", 5).caption(), known ? "4711" : "");
    }
}

TEST(Testergebnis, PrintsOnceInWhiteAndTellsWhatFailed) {
    for (const bool fails : {false, true}) {
        ResultForm result;
        if (fails) result.printer.fault = "no paper";
        const auto& form = result.opened();
        for (int click = 0; click < 2; ++click)
            static_cast<form::Button&>(result.part("cmdPrint")).click();
        EXPECT_EQ(result.printer.pages.size(), fails ? 0U : 1U);
        EXPECT_TRUE(form.whitened());
        EXPECT_TRUE(result.part("PicSchalt").visible());
        EXPECT_EQ(result.loaded("frmMessage"), fails);
    }
}

TEST(Testergebnis, LeavesToTheSetUpFormAndByItselfAfterAFaultWhileItFills) {
    for (const bool faulty : {false, true}) {
        SCOPED_TRACE(faulty);
        ResultForm result;
        auto& forms = result.programm.forms;
        if (faulty) result.drill.wertung.auswertung.init_arr(2, 1);
        forms.hide("einstellung1");
        result.later(500, [&] {
            if (form::Form* form = forms.loaded("testergebnis"))
                form->key({form::Key::Kind::Enter});
        });
        EXPECT_NO_THROW(forms.runModal("testergebnis"));
        EXPECT_EQ(result.host.faults.size(), faulty ? 1U : 0U);
        EXPECT_EQ(result.setUp().visible(), !faulty) << "else the worksheet does it";
    }
}

}  // namespace
}  // namespace results
