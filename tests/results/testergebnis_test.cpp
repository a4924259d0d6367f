#include "results/testergebnis.h"

#include "support/drill_fixture.h"

#include <gtest/gtest.h>

namespace results {
namespace {

/// A result form after a training in church modes, shown over a table that a test fills.
struct ResultForm {
    ResultForm() {
        drill.wertung.vorbereiten();
        drill.z.bewertung_basis = 2;
        drill.z.uebungsmodus = 1;
    }
    /// A slot with one task and what it booked.
    void score(int slot, float booked) {
        drill.wertung.auswertung.Save(slot, 0, 1);
        drill.wertung.auswertung.Save(slot, 1, booked);
    }
    Testergebnis& open() {
        drill.programm.forms.load("testergebnis");
        drill.wait(5);
        return form();
    }
    Testergebnis& form() {
        return static_cast<Testergebnis&>(drill.programm.forms.load("testergebnis"));
    }
    form::Control& control(const std::string& name, int index = form::Place::noIndex) {
        return *form().find(name, index);
    }
    support::DrillFixture drill;
};

TEST(Testergebnis, EachRowReadsItsOwnSlot) {
    struct Row {
        const char* name;
        int richtung;
        std::size_t rows;
        int slot;              ///< the one that is scored
        std::size_t expected;  ///< row that shows it, beyond all rows for none
        bool secondHeading;
    };
    for (const Row& row : {Row{"ascending, first scale", 0, 7, 1, 0, false},
                           {"ascending, last scale", 0, 7, 7, 6, false},
                           {"ascending does not show descending", 0, 7, 8, 99, false},
                           {"descending, first scale", 1, 7, 8, 0, false},
                           {"descending does not show ascending", 1, 7, 1, 99, false},
                           {"both, ascending", 2, 14, 3, 2, true},
                           {"both, descending", 2, 14, 14, 13, true}}) {
        SCOPED_TRACE(row.name);
        ResultForm result;
        result.drill.z.richtung = row.richtung;
        result.score(row.slot, -12);
        result.open();
        const auto rows = result.form().zeilen();
        ASSERT_EQ(rows.size(), row.rows);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            EXPECT_EQ(rows[i].prozent, i == row.expected ? "75.0%" : "0.0 %") << i;
            EXPECT_EQ(rows[i].name,
                      result.drill.programm.katalog.skal_name[0][static_cast<int>(i) % 7]);
        }
        EXPECT_EQ(result.form().gesamtText(), row.expected == 99 ? "0.0 %" : "75.0%");
        EXPECT_EQ(result.control("Lab_richtung", 1).visible(), row.secondHeading);
        EXPECT_EQ(result.control("Lab_richtung", 0).caption(), row.richtung == 1 ? "W83" : "W132");
    }
}

TEST(Testergebnis, TheTotalIsTheMeanOfTheRowsThatCount) {
    ResultForm result;
    for (const auto& [slot, booked] : {std::pair{1, -16.F}, {4, -8.F}, {14, 3.F}})
        result.score(slot, booked);
    result.open();
    EXPECT_EQ(result.form().gesamtText(), "50.0%");

    ResultForm largest;
    largest.drill.category(6);
    for (int slot = 1; slot <= 20; ++slot) largest.score(slot, -16);
    largest.open();
    ASSERT_EQ(largest.form().zeilen().size(), 20U);
    EXPECT_EQ(largest.form().gesamtText(), "100.0%");
}

TEST(Testergebnis, NamesWhoWasLoggedIn) {
    for (const bool known : {true, false}) {
        ResultForm result;
        result.drill.z.angemeldet = known;
        result.open();
        EXPECT_EQ(result.control("g_einst_inh", 5).visible(), known);
        EXPECT_EQ(result.control("g_einst_inh", 5).caption(), known ? "4711" : "");
    }
}

TEST(Testergebnis, PrintsOnceInWhiteAndTellsWhatFailed) {
    for (const bool fails : {false, true}) {
        ResultForm result;
        result.open();
        if (fails) result.drill.printer.fault = "no paper";
        auto& print = static_cast<form::Button&>(result.control("cmdPrint"));
        print.click();
        print.click();
        EXPECT_EQ(result.drill.printer.pages.size(), fails ? 0U : 1U);
        EXPECT_TRUE(result.form().whitened());
        EXPECT_TRUE(result.control("PicSchalt").visible());
        EXPECT_EQ(result.drill.programm.forms.loaded("frmMessage") != nullptr, fails);
    }
}

TEST(Testergebnis, LeavesToTheSetUpFormAndByItselfAfterAFaultWhileItFills) {
    for (const bool faulty : {false, true}) {
        SCOPED_TRACE(faulty);
        ResultForm result;
        auto& forms = result.drill.programm.forms;
        if (faulty) result.drill.wertung.auswertung.init_arr(2, 1);
        forms.load("einstellung1");
        result.drill.later(500, [&] {
            if (form::Form* form = forms.loaded("testergebnis"))
                form->key({form::Key::Kind::Enter});
        });
        EXPECT_NO_THROW(forms.runModal("testergebnis"));
        EXPECT_EQ(result.drill.host.faults.size(), faulty ? 1U : 0U);
        EXPECT_EQ(forms.loaded("einstellung1")->visible(), !faulty) << "else the worksheet does it";
    }
}

}  // namespace
}  // namespace results
