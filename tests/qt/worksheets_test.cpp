// The worksheets with a staff, in real windows: written, named, solved, and by keyboard alone.
#include "notation/schreib_blatt.h"
#include "pictures.h"
#include "qt/staff_widget.h"

#include <QApplication>
#include <QKeyEvent>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

namespace {

using engine::AufgZustand;

notation::SchreibBlatt& writing(const Stage& stage) {
    return dynamic_cast<notation::SchreibBlatt&>(stage.form(stage.sheet()));
}

void next(Stage& stage) {
    stage.control<form::Button>(stage.sheet(), "CmdNextAufg").click();
    stage.wait(14000);
}

/// Drops an accidental of the palette on a column, as a drag of the mouse does.
void drop(Stage& stage, int column, int accidental) {
    notation::Notenzeile& staff = writing(stage).notenzeile();
    const auto& note = staff.NotSelb(column);
    staff.PicB(staff.SchlZ())
        .ablegen({stage.control<form::Control>(stage.sheet(), "NotP", accidental + 2),
                  static_cast<float>(staff.lage().x(column)), static_cast<float>(note.y())});
}

void handIn(Stage& stage) { stage.control<form::Button>(stage.sheet(), "cmdOK").click(); }

/// Hands in wrong versions until the solution stands there.
void lose(Stage& stage) {
    for (int tries = 0; tries < 4; ++tries) {
        const int here = writing(stage).notenzeile().NotSelb(2).vorzeichen;
        const int right = notation::vorzeichen(writing(stage).erwartung().inSpalte(2).qz);
        for (const int other : {-1, 0, 1})
            if (other != here && other != right) {
                drop(stage, 2, other);
                break;
            }
        handIn(stage);
    }
}

void leave(Stage& stage) {
    stage.control<form::Panel>(stage.sheet(), "zurueck").click();
    stage.wait(50);
    stage.control<form::Button>(stage.setup(), "cmdZurueck").click();
    stage.wait(50);
}

TEST(Worksheets, AreReadableInEveryLanguageAndSize) {
    for (const std::string& language : allLanguages) {
        SCOPED_TRACE(language);
        Stage stage(language);
        for (const bool theory : {false, true}) {
            stage.openSetup(theory, 4);
            lookAt(stage, stage.setup(), language + "-a-" + stage.setup() + "-4");
            stage.openWorksheet();
            next(stage);
            lookAt(stage, stage.sheet(), language + "-b-" + stage.sheet());
            lose(stage);
            lookAt(stage, stage.sheet(), language + "-c-" + stage.sheet() + "-solution");
            leave(stage);
        }
        stage.openSetup(true, 1);
        lookAt(stage, stage.setup(), language + "-d-" + stage.setup());
        for (const int names : {0, 1}) {
            stage.drill.programm.zustand.an_zeig = names;
            stage.openWorksheet();
            next(stage);
            lookAt(stage, stage.sheet(), language + "-e-" + stage.sheet() + std::to_string(names));
            stage.control<form::Panel>(stage.sheet(), "zurueck").click();
            stage.wait(50);
        }
    }
}

/// Keys with no, four and seven signs, in both clefs; the steps of a closed task.
TEST(Worksheets, TheoryShowsEveryKey) {
    Stage stage;
    stage.openSetup(true, 1);
    for (const int range : {0, 3}) {
        stage.control<form::Combo>(stage.setup(), "CmbOktBer").setListIndex(range);
        stage.openWorksheet();
        auto& sheet = dynamic_cast<engine::Arbeitsblatt&>(stage.form(stage.sheet()));
        const core::Zustand& z = stage.drill.programm.zustand;
        std::set<int> seen;
        for (int task = 0; task < 150 && seen.size() < 4; ++task) {
            next(stage);
            stage.control<form::Panel>(stage.sheet(), "tonart", z.skala_nr).click();
            stage.control<form::Picture>(stage.sheet(), "ton_art", z.skala_nr).click();
            EXPECT_EQ(sheet.aufgZustand(), AufgZustand::Geschlossen);
            const int key = sheet.aufgabe().quintLage;
            if (key != 0 && key != -4 && std::abs(key) != 7) continue;
            if (!seen.insert(key).second) continue;
            stage.control<form::Button>(stage.sheet(), "schrittmarken").click();
            QApplication::processEvents();
            keepPicture(stage.window(stage.sheet()),
                        "key" + std::to_string(key) + (range == 0 ? "-bass" : "-treble"));
        }
        EXPECT_EQ(seen.size(), 4U);
        stage.control<form::Panel>(stage.sheet(), "zurueck").click();
        stage.wait(50);
    }
}

TEST(Worksheets, AScaleIsWrittenByKeyboardAlone) {
    Stage stage("English");
    stage.openSetup(false, 4);
    stage.openWorksheet();
    auto& sheet = writing(stage);
    auto& staff = stage.widget<qt::StaffWidget>(stage.sheet(), "PicBNot");
    const auto press = [&](Qt::Key key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&staff, &event);
        QApplication::processEvents();
    };
    stage.press(stage.sheet(), Qt::Key_Return);
    stage.wait(14000);
    for (int column = 1; column <= 6; ++column) {
        const int accidental = notation::vorzeichen(sheet.erwartung().inSpalte(column).qz);
        if (column % 2 == 0 && accidental != 0) {
            press(static_cast<Qt::Key>(Qt::Key_3 + accidental));
            press(Qt::Key_Return);
        } else {
            for (int step = 0; step < std::abs(accidental); ++step)
                press(accidental > 0 ? Qt::Key_Up : Qt::Key_Down);
        }
        press(Qt::Key_Right);
    }
    EXPECT_EQ(notation::falscheSpalten(sheet.notenzeile(), sheet.erwartung()), 0);
    EXPECT_NE(staff.accessibleDescription().indexOf(QRegularExpression("flat|sharp")), -1);
    stage.press(stage.sheet(), Qt::Key_Return);
    EXPECT_EQ(sheet.aufgZustand(), AufgZustand::Geschlossen);
    EXPECT_EQ(stage.control<form::Label>(stage.sheet(), "zaehler", 0).caption(), "1");
    const auto before = sheet.notenzeile().NotSelb(1).midi;
    press(Qt::Key_Up);
    EXPECT_EQ(sheet.notenzeile().NotSelb(1).midi, before) << "a closed task stands";
}

}  // namespace
