// Every form in a real window, in every language and at several sizes.
#include "look/application.h"
#include "pictures.h"
#include "qt/dialogs.h"
#include "qt/help.h"
#include "qt/printer.h"
#include "stage.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

TEST(Windows, EveryFormIsReadableInEveryLanguageAndSize) {
    for (const std::string& language : allLanguages) {
        SCOPED_TRACE(language);
        Stage stage(language);
        lookAt(stage, "grd_einst", language + "-1-start");
        stage.openSetup();
        lookAt(stage, "einstellung1", language + "-2-setup");
        stage.control<form::Combo>("einstellung1", "training_Combo").setListIndex(4);
        lookAt(stage, "einstellung1", language + "-3-exam");
        stage.control<form::Combo>("einstellung1", "training_Combo").setListIndex(1);
        stage.control<form::Option>("einstellung1", "ska_ausw", 1).click();
        for (const int item : {4, 4, 0})
            stage.control<form::ListBox>("einstellung1", "lst_ska", 0).click(item);
        lookAt(stage, "einstellung1", language + "-8-chosen");
        stage.control<form::Option>("einstellung1", "ska_ausw", 0).click();
        for (const char* dialog : {"frmSave", "frmLoad"}) {
            stage.drill.programm.forms.load(dialog);
            lookAt(stage, dialog, language + "-9-" + dialog);
            stage.drill.programm.forms.unload(dialog);
        }
        stage.control<form::Combo>("einstellung1", "skal_typ_cmb").setListIndex(6);
        stage.control<form::Combo>("einstellung1", "Combo_richtung").setListIndex(2);
        stage.control<form::Option>("einstellung1", "ska_ausw", 1).click();
        for (int chosen = 0; chosen < 15; ++chosen)
            stage.control<form::ListBox>("einstellung1", "lst_ska", 0).click(0);
        lookAt(stage, "einstellung1", language + "-8-fifteen");
        stage.openWorksheet();
        stage.task(true);
        lookAt(stage, "arbeitsblatt1", language + "-4-training");
        stage.whenResult([&] { lookAt(stage, "testergebnis", language + "-5-result"); });
        while (stage.task(false)) {
        }
        lookAt(stage, "arbeitsblatt1", language + "-6-failed");
        stage.control<form::Panel>("arbeitsblatt1", "zurueck").click();
        stage.wait(500);
        EXPECT_TRUE(stage.window("einstellung1").isVisible());
        EXPECT_EQ(stage.drill.programm.forms.loaded("arbeitsblatt1"), nullptr);

        stage.control<form::Option>("einstellung1", "ska_ausw", 0).click();
        stage.control<form::Combo>("einstellung1", "skal_typ_cmb").setListIndex(3);
        stage.control<form::Option>("einstellung1", "an_zeig", 1).choose();
        stage.control<form::Combo>("einstellung1", "training_Combo").setListIndex(3);
        stage.openWorksheet();
        stage.wait(15000);
        lookAt(stage, "arbeitsblatt1", language + "-7-names");
        if (language != "Deutsch") continue;
        stage.control<form::Panel>("arbeitsblatt1", "zurueck").click();
        stage.control<form::Combo>("einstellung1", "training_Combo").setListIndex(0);
        stage.control<form::Option>("einstellung1", "abfrage", 0).choose();
        for (int typ = 0; typ < 7; ++typ) {
            stage.control<form::Combo>("einstellung1", "skal_typ_cmb").setListIndex(typ);
            stage.control<form::Option>("einstellung1", "an_zeig", 0).choose();
            stage.control<form::Option>("einstellung1", "final", typ % 2 == 0 ? 1 : 2).choose();
            stage.openWorksheet();
            stage.task(true);
            lookAt(stage, "arbeitsblatt1", "pictures-" + std::to_string(typ));
            stage.control<form::Panel>("arbeitsblatt1", "zurueck").click();
            stage.wait(10);
        }
    }
}

TEST(Windows, TheWholeRoadByKeyboard) {
    Stage stage("English");
    stage.press("grd_einst", Qt::Key_F1);
    EXPECT_EQ(stage.help.opened, std::vector<std::string>{"grd_einst/en"});
    stage.press("grd_einst", Qt::Key_Return);
    stage.wait(300);
    stage.press("einstellung1", Qt::Key_Return);
    stage.wait(10);
    stage.press("arbeitsblatt1", Qt::Key_Enter);
    stage.wait(13000);
    stage.press("arbeitsblatt1", Qt::Key_Space);
    stage.wait(13000);
    EXPECT_EQ(stage.widget<QLabel>("arbeitsblatt1", "whlgzaehler").text(), "1");
    keepPicture(stage.window("arbeitsblatt1"), "worksheet");
    const int right = stage.drill.programm.zustand.skala_nr;
    stage.press("arbeitsblatt1", static_cast<Qt::Key>(Qt::Key_1 + right));
    EXPECT_EQ(stage.widget<QLabel>("arbeitsblatt1", "zaehler_0").text(), "1");
    EXPECT_EQ(stage.widget<QLabel>("arbeitsblatt1", "zaehler_1").text(), "0");
    stage.press("arbeitsblatt1", Qt::Key_Escape);
    EXPECT_TRUE(stage.window("einstellung1").isVisible());
    stage.press("einstellung1", Qt::Key_Escape);
    EXPECT_TRUE(stage.window("grd_einst").isVisible());
}

TEST(Windows, ScalesAreChosenByKeyboard) {
    Stage stage;
    stage.openSetup();
    stage.control<form::Option>("einstellung1", "ska_ausw", 1).click();
    auto& offered = stage.widget<QListWidget>("einstellung1", "lst_ska_0");
    auto& chosen = stage.widget<QListWidget>("einstellung1", "lst_ska_1");
    offered.setFocus();
    offered.setCurrentRow(3);
    const auto press = [](QWidget& widget, Qt::Key key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    };
    press(offered, Qt::Key_Return);
    press(offered, Qt::Key_Space);
    EXPECT_EQ(chosen.count(), 2);
    EXPECT_EQ(offered.count(), 12);
    EXPECT_EQ(offered.currentRow(), 3) << "the focus stays where it was";
    EXPECT_EQ(chosen.item(0)->text(), "- dorisch");
    chosen.setCurrentRow(0);
    press(chosen, Qt::Key_Enter);
    EXPECT_EQ(chosen.count(), 1);
    for (int exam = 1; exam <= 5; ++exam) {
        stage.control<form::Combo>("einstellung1", "training_Combo").setListIndex(4);
        stage.control<form::Combo>("einstellung1", "prfnr_Comb").setListIndex(exam - 1);
        QApplication::processEvents();
        keepPicture(stage.window("einstellung1"), "exam-" + std::to_string(exam));
    }
}

TEST(Windows, WidgetsTellTheFormAndFollowIt) {
    Stage stage;
    stage.openSetup();
    auto& combo = stage.widget<QComboBox>("einstellung1", "skal_typ_cmb");
    combo.setCurrentIndex(4);
    emit combo.activated(4);
    const core::Zustand& z = stage.drill.programm.zustand;
    EXPECT_EQ(z.skal_typ, 4);
    EXPECT_FALSE(stage.widget<QRadioButton>("einstellung1", "stimm_g_1").isEnabled());
    stage.widget<QRadioButton>("einstellung1", "final_1").click();
    EXPECT_EQ(z.final, 1);
    EXPECT_FALSE(stage.widget<QRadioButton>("einstellung1", "final_2").isChecked());
    stage.control<form::Option>("einstellung1", "final", 2).choose();
    EXPECT_TRUE(stage.widget<QRadioButton>("einstellung1", "final_2").isChecked());
    EXPECT_FALSE(stage.widget<QRadioButton>("einstellung1", "final_1").isChecked());
    EXPECT_EQ(stage.widget<QComboBox>("einstellung1", "CmbOktBer").count(), 4);
    stage.control<form::Combo>("einstellung1", "CmbOktAnz").setListIndex(3);
    EXPECT_EQ(stage.widget<QComboBox>("einstellung1", "CmbOktBer").count(), 1);
    stage.window("einstellung1").close();
    EXPECT_TRUE(stage.window("grd_einst").isVisible()) << "the close box is the way back";
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
    auto& notice = stage.control<form::Group>("arbeitsblatt1", "WaitMeldung");
    notice.visible = true;
    QApplication::processEvents();
    EXPECT_EQ(places(), before);
    const auto& shown = stage.widget<QWidget>("arbeitsblatt1", "WaitMeldung");
    EXPECT_LE((shown.geometry().center() - window.rect().center()).manhattanLength(), 2);
    EXPECT_GE(shown.width(), shown.sizeHint().width());
    const auto& words = stage.widget<QLabel>("arbeitsblatt1", "WaitMeld");
    EXPECT_TRUE(words.isVisible());
    EXPECT_GE(words.width(), words.sizeHint().width());
    EXPECT_FALSE(words.text().isEmpty());
    keepPicture(window, "waiting");
}

TEST(Boxes, SpeakTheLanguageOfTheProgram) {
    qt::QtDialogs dialogs;
    dialogs.answers = [] { return qt::QtDialogs::Answers{"Aceptar", "Sí", "No"}; };
    for (const bool yes : {true, false}) {
        QTimer::singleShot(0, [yes] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            QStringList captions;
            for (const auto* button : box->buttons()) captions << button->text();
            captions.sort();
            EXPECT_EQ(captions, QStringList({"No", "Sí"}));
            QKeyEvent press(QEvent::KeyPress, yes ? Qt::Key_Return : Qt::Key_Escape,
                            Qt::NoModifier);
            QApplication::sendEvent(yes ? static_cast<QWidget*>(box->defaultButton()) : box,
                                    &press);
        });
        EXPECT_EQ(dialogs.askYesNo("title", "text"), yes);
    }
    const auto cancel = [] { return QApplication::translate("QPlatformTheme", "Cancel"); };
    qt::LanguageFiles files(qt::LanguageFiles::installedFolder());
    for (const auto& [suffix, word] : {std::pair{"de", "Abbrechen"}, {"es", "Cancelar"}}) {
        const auto language = files.erzeugen(std::string("melvoralang.") + suffix);
        EXPECT_EQ(cancel(), word);
    }
    EXPECT_EQ(cancel(), "Cancel");
}

TEST(Application, CatchesWhatNoHandlerCaught) {
    auto& application = static_cast<look::Application&>(*QApplication::instance());
    std::vector<std::string> told;
    application.uncaught = [&](const std::exception& fault) { told.emplace_back(fault.what()); };
    QTimer::singleShot(0, [] { throw std::runtime_error("memory is full"); });
    QTimer::singleShot(0, [] { throw 7; });
    for (int i = 0; i < 50 && told.size() < 2; ++i) QApplication::processEvents();
    application.uncaught = nullptr;
    EXPECT_EQ(told, (std::vector<std::string>{"memory is full", "an unknown fault"}));
}

TEST(Help, HasAPageForEveryFormInEveryLanguage) {
    const qt::QtHelp help;  // brings the pages
    for (const char* language : {"de", "en", "es", "fr"})
        for (const char* page :
             {"index", "grd_einst", "einstellung1", "einstellung1b", "frmSave", "frmLoad",
              "arbeitsblatt1", "arbeitsblatt1b", "arbeitsblatt4", "arbeitsblatt4b", "testergebnis"})
            EXPECT_TRUE(QFile::exists(QString(":/help/%1/%2.html").arg(language, page)))
                << language << " " << page;
}

TEST(Printing, TheResultFormFillsOneLandscapePage) {
    Stage stage;
    stage.openSetup();
    stage.control<form::Combo>("einstellung1", "training_Combo").setListIndex(1);
    stage.openWorksheet();
    QTemporaryDir folder;
    const QString kept = qEnvironmentVariable("MELVORA_SCREENSHOTS");
    const QString file = (kept.isEmpty() ? folder.path() : kept) + "/result.pdf";
    stage.whenResult([&] {
        stage.control<form::Button>("testergebnis", "cmdPrint").click();
        EXPECT_EQ(stage.printer.pages, std::vector<std::string>{"testergebnis"});
        EXPECT_FALSE(stage.widget<QPushButton>("testergebnis", "cmdPrint").isEnabled());
        qt::printWidget(stage.windows.of(stage.form("testergebnis"))->contents(),
                        file.toStdString());
    });
    while (stage.task(false)) {
    }
    stage.control<form::Panel>("arbeitsblatt1", "zurueck").click();
    stage.wait(500);
    QFile pdf(file);
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    const QByteArray bytes = pdf.readAll();
    EXPECT_TRUE(bytes.startsWith("%PDF"));
    EXPECT_EQ(bytes.count("/Type /Page") - bytes.count("/Type /Pages"), 1);
    EXPECT_TRUE(bytes.contains("/MediaBox [0 0 842")) << "A4 on its side";
    EXPECT_FALSE(bytes.contains("/Subtype /Image")) << "text and lines, no picture";
    EXPECT_TRUE(bytes.contains("/Font"));
    EXPECT_LT(bytes.size(), 200'000);
}

}  // namespace
