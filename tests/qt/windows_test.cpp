// Every form in a real window, in every language and at several sizes.
#include "pictures.h"
#include "qt/dialogs.h"
#include "qt/printer.h"
#include "stage.h"
#include "suite/application.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

TEST(Windows, EveryFormIsReadableInEveryLanguageAndSize) {
    for (const std::string& language : allLanguages) {
        SCOPED_TRACE(language);
        Stage stage(language);
        const auto look = [&](const std::string& form, const std::string& picture) {
            lookAt(stage, form, language + picture);
        };
        look("grd_einst", "-1-start");
        stage.openSetup();
        look("einstellung1", "-2-setup");
        stage.combo("training_Combo").setListIndex(4);
        look("einstellung1", "-3-exam");
        stage.combo("training_Combo").setListIndex(1);
        stage.option("ska_ausw", 1).choose();
        for (const int item : {4, 4, 0}) stage.list(0).click(item);
        look("einstellung1", "-8-chosen");
        stage.option("ska_ausw", 0).choose();
        for (const char* dialog : {"frmSave", "frmLoad"}) {
            stage.programm.forms.load(dialog);
            look(dialog, std::string("-9-") + dialog);
            stage.programm.forms.unload(dialog);
        }
        stage.combo("skal_typ_cmb").setListIndex(6);
        stage.combo("Combo_richtung").setListIndex(2);
        stage.option("ska_ausw", 1).choose();
        for (int chosen = 0; chosen < 15; ++chosen) stage.list(0).click(0);
        look("einstellung1", "-8-fifteen");
        stage.openWorksheet();
        stage.task(true);
        look("arbeitsblatt1", "-4-training");
        stage.whenResult([&] { look("testergebnis", "-5-result"); });
        while (stage.task(false)) {
        }
        look("arbeitsblatt1", "-6-failed");
        stage.leave();
        EXPECT_TRUE(stage.window("einstellung1").isVisible());
        EXPECT_FALSE(stage.loaded("arbeitsblatt1"));

        stage.option("ska_ausw", 0).choose();
        stage.combo("skal_typ_cmb").setListIndex(3);
        stage.option("an_zeig", 1).choose();
        stage.combo("training_Combo").setListIndex(3);
        stage.openWorksheet();
        stage.wait(15000);
        look("arbeitsblatt1", "-7-names");
        if (language != "Deutsch") continue;
        stage.leave();
        stage.combo("training_Combo").setListIndex(0);
        stage.option("abfrage", 0).choose();
        for (int typ = 0; typ < 7; ++typ) {
            stage.combo("skal_typ_cmb").setListIndex(typ);
            stage.option("an_zeig", 0).choose();
            stage.option("final", typ % 2 == 0 ? 1 : 2).choose();
            stage.openWorksheet();
            stage.task(true);
            look("arbeitsblatt1", "-pictures-" + std::to_string(typ));
            stage.leave();
        }
    }
}

TEST(Windows, ScalesAreChosenByKeyboard) {
    Stage stage;
    stage.openSetup();
    stage.option("ska_ausw", 1).click();
    auto& offered = stage.widget<QListWidget>("einstellung1", "lst_ska_0");
    auto& chosen = stage.widget<QListWidget>("einstellung1", "lst_ska_1");
    offered.setFocus();
    offered.setCurrentRow(3);
    Stage::press(offered, Qt::Key_Return);
    Stage::press(offered, Qt::Key_Space);
    EXPECT_EQ(chosen.count(), 2);
    EXPECT_EQ(offered.count(), 12);
    EXPECT_EQ(offered.currentRow(), 3) << "the focus stays where it was";
    EXPECT_EQ(chosen.item(0)->text(), "- dorisch");
    chosen.setCurrentRow(0);
    Stage::press(chosen, Qt::Key_Enter);
    EXPECT_EQ(chosen.count(), 1);
    stage.press("einstellung1", Qt::Key_F1);
    EXPECT_EQ(stage.help.opened, std::vector<std::string>{"einstellung1/de"});
}

TEST(Windows, WidgetsTellTheFormAndFollowIt) {
    Stage stage;
    stage.openSetup();
    auto& combo = stage.widget<QComboBox>("einstellung1", "skal_typ_cmb");
    combo.setCurrentIndex(4);
    emit combo.activated(4);
    EXPECT_EQ(stage.z.skal_typ, 4);
    EXPECT_FALSE(stage.widget<QRadioButton>("einstellung1", "stimm_g_1").isEnabled());
    const auto& one = stage.widget<QRadioButton>("einstellung1", "final_2");
    auto& other = stage.widget<QRadioButton>("einstellung1", "final_1");
    other.click();
    EXPECT_EQ(stage.z.final, 1);
    EXPECT_FALSE(one.isChecked());
    stage.option("final", 2).choose();
    EXPECT_TRUE(one.isChecked());
    EXPECT_FALSE(other.isChecked());
    stage.combo("CmbOktAnz").setListIndex(3);
    EXPECT_EQ(stage.widget<QComboBox>("einstellung1", "CmbOktBer").count(), 1);
    stage.combo("skal_typ_cmb").setListIndex(1);
    stage.option("ska_ausw", 1).click();
    stage.list(0).click(2);
    EXPECT_EQ(stage.list(1).item(0).text, "+ dorisch b2") << "for records and files";
    EXPECT_EQ(stage.widget<QListWidget>("einstellung1", "lst_ska_1").item(0)->text(),
              "+ dorisch ♭2");
    stage.window("einstellung1").close();
    EXPECT_TRUE(stage.window("grd_einst").isVisible()) << "the close box is the way back";
}

TEST(Windows, InstrumentsAreReadInTheLanguageAndThoseHeardLastStandOnTop) {
    Stage stage("Français");
    stage.openSetup();
    auto& box = stage.widget<QComboBox>("einstellung1", "ComboPatch");
    const auto pick = [&](int row) {
        box.setCurrentIndex(row);
        emit box.activated(row);
    };
    const auto onTop = [&] {
        std::vector<int> items;
        items.reserve(5);
        for (int row = 0; row < box.count() - 129; ++row)
            items.push_back(box.itemData(row).toInt());
        return items;
    };
    EXPECT_EQ(box.count(), 128);
    EXPECT_EQ(box.itemText(6), "Clavecin");
    pick(6);
    EXPECT_EQ(stage.combo("ComboPatch").text(), "Harpsichord");
    EXPECT_EQ(box.count(), 128) << "not heard yet";
    for (const int item : {6, 40, 71, 6, 73, 19, 0, 40}) {
        stage.combo("ComboPatch").setListIndex(item);
        stage.button("klang_contr").click();
        stage.wait(20000);
    }
    EXPECT_EQ(onTop(), (std::vector{40, 0, 19, 73, 6}));
    EXPECT_EQ(box.currentIndex(), 0) << "what was heard last is chosen where it stands on top";
    EXPECT_EQ(box.itemData(5, Qt::AccessibleDescriptionRole), "separator");
    pick(4);
    EXPECT_EQ(stage.z.patch[0], 6);
    Stage::press(box, Qt::Key_Down);
    EXPECT_EQ(stage.z.patch[0], 0) << "over the line, to the first of all";
    EXPECT_EQ(box.currentIndex(), 6);
    QTest::keyClicks(&box, "vio");
    EXPECT_EQ(stage.combo("ComboPatch").text(), "Violin");
    box.showPopup();
    QApplication::processEvents();
    EXPECT_LE(box.view()->viewport()->height(), 15 * box.view()->sizeHintForRow(0) + 15);
    box.hidePopup();
    stage.window("einstellung1").close();
    stage.openSetup();
    auto& again = stage.widget<QComboBox>("einstellung1", "ComboPatch");
    EXPECT_EQ(again.count(), 128 + 1 + 5) << "as long as the program runs";
}

TEST(Windows, TheWaitingNoticeLiesInTheMiddleAndMovesNothing) {
    Stage stage;
    stage.openSetup();
    stage.openWorksheet();
    QWidget& window = stage.window("arbeitsblatt1");
    const auto places = [&] {
        std::vector<QRect> all;
        for (const QWidget* w : window.findChildren<QWidget*>())
            if (!w->objectName().startsWith("Wait")) all.push_back(w->geometry());
        return all;
    };
    const auto before = places();
    stage.on<form::Group>("WaitMeldung").visible = true;
    QApplication::processEvents();
    EXPECT_EQ(places(), before);
    const auto& shown = stage.widget<QWidget>("arbeitsblatt1", "WaitMeldung");
    EXPECT_LE((shown.geometry().center() - window.rect().center()).manhattanLength(), 2);
    EXPECT_GE(shown.width(), shown.sizeHint().width());
}

/// What is kept unless it is refused is not lost by Esc; what is lost only when it is meant.
TEST(Boxes, AreAnsweredAsTheyAreMeant) {
    qt::QtDialogs dialogs;
    dialogs.answers = [] { return qt::QtDialogs::Answers{"Aceptar", "Sí", "No"}; };
    using Ask = bool (form::Dialogs::*)(const std::string&, const std::string&);
    struct Case {
        Ask ask;
        int key;
        const char* button;  ///< pressed if the box is still open then
        bool answer;
    };
    for (const Case& c : {Case{&form::Dialogs::askYesNo, Qt::Key_Return, "", true},
                          {&form::Dialogs::askYesNo, Qt::Key_Escape, "No", false},
                          {&form::Dialogs::confirm, Qt::Key_Return, "", false},
                          {&form::Dialogs::confirm, Qt::Key_Escape, "", false},
                          {&form::Dialogs::confirm, Qt::Key_unknown, "Sí", true}}) {
        QTimer::singleShot(0, [&c] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            Stage::press(*(c.key == Qt::Key_Return ? box->defaultButton() : box->focusWidget()),
                         static_cast<Qt::Key>(c.key));
            if (c.ask == &form::Dialogs::askYesNo) box->close();
            for (auto* button : box->buttons())
                if (box->isVisible() && button->text().remove('&') == c.button) button->click();
            EXPECT_FALSE(box->isVisible());
        });
        EXPECT_EQ((dialogs.*c.ask)("title", "text"), c.answer);
    }
}

TEST(Boxes, SpeakTheLanguageOfTheProgram) {
    const auto cancel = [] { return QApplication::translate("QPlatformTheme", "Cancel"); };
    qt::LanguageFiles files(suite::languageFolder());
    for (const auto& [suffix, word] : {std::pair{"de", "Abbrechen"}, {"es", "Cancelar"}}) {
        const auto language = files.erzeugen(std::string("melvoralang.") + suffix);
        EXPECT_EQ(cancel(), word);
    }
    EXPECT_EQ(cancel(), "Cancel");
}

TEST(Application, CatchesWhatNoHandlerCaught) {
    auto& application = static_cast<suite::Application&>(*QApplication::instance());
    std::vector<std::string> told;
    application.uncaught = [&](const std::exception& fault) { told.emplace_back(fault.what()); };
    QTimer::singleShot(0, [] { throw std::runtime_error("memory is full"); });
    QTimer::singleShot(0, [] { throw 7; });
    for (int i = 0; i < 50 && told.size() < 2; ++i) QApplication::processEvents();
    application.uncaught = nullptr;
    EXPECT_EQ(told, (std::vector<std::string>{"memory is full", "an unknown fault"}));
}

TEST(Printing, TheResultFormFillsOneLandscapePage) {
    Stage stage;
    stage.openSetup();
    stage.combo("training_Combo").setListIndex(1);
    stage.openWorksheet();
    const QTemporaryDir folder;
    const QString file = folder.filePath("result.pdf");
    stage.whenResult([&] {
        stage.control<form::Button>("testergebnis", "cmdPrint").click();
        EXPECT_EQ(stage.printer.pages, std::vector<std::string>{"testergebnis"});
        EXPECT_FALSE(stage.widget<QPushButton>("testergebnis", "cmdPrint").isEnabled());
        qt::printWidget(stage.windows.of(stage.form("testergebnis"))->contents(),
                        file.toStdString());
    });
    while (stage.task(false)) {
    }
    stage.leave();
    QFile pdf(file);
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    const QByteArray bytes = pdf.readAll();
    EXPECT_TRUE(bytes.startsWith("%PDF"));
    EXPECT_EQ(bytes.count("/Type /Page") - bytes.count("/Type /Pages"), 1);
    EXPECT_TRUE(bytes.contains("/MediaBox [0 0 842")) << "A4 on its side";
    EXPECT_FALSE(bytes.contains("/Subtype /Image")) << "text and lines, no picture";
    EXPECT_TRUE(bytes.contains("/BaseFont"));
    EXPECT_LT(bytes.size(), 200'000);
}

}  // namespace
