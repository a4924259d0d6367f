#include "core/wort.h"
#include "melvora/main_window.h"
#include "melvora/requests.h"
#include "melvora/user_dialog.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QTableView>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QThread>

#include <gtest/gtest.h>

namespace melvora {
namespace {

class WindowTest : public testing::Test {
  protected:
    WindowTest() {
        qputenv("MELVORA_MODULE_PATH", MELVORA_FAKE_MODULES);
        host_.chooseLanguage("Deutsch");
        const QString longName(80, 'W');
        host_.putUser({"anna", longName, longName, "4711"});
        window_.show();
        settle();
    }
    void TearDown() override { qunsetenv("MELVORA_MODULE_PATH"); }

    static void settle() { QApplication::processEvents(); }
    template <class Condition>
    static void until(Condition condition) {
        for (int i = 0; i < 2000 && !condition(); ++i) {
            QApplication::processEvents();
            QThread::msleep(5);
        }
    }

    QTemporaryDir folder_;
    Words words_{MELVORA_LANGUAGES};
    Host host_{{folder_.path(), "unix:path=/nowhere", {}}, words_};
    MainWindow window_{host_};
};

void expectNothingCutOff(const QWidget& window) {
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        if (!button->isVisible() || button->text().isEmpty()) continue;
        EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
    }
    for (const auto* label : window.findChildren<QLabel*>()) {
        if (!label->isVisible() || label->wordWrap()) continue;
        EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
    }
}

/// Whoever hears a window instead of seeing it is told what each control is.
void expectNamed(const QWidget& window) {
    for (auto* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->focusPolicy() == Qt::NoFocus) continue;
        if (!qobject_cast<QComboBox*>(widget) && !qobject_cast<QAbstractButton*>(widget) &&
            !qobject_cast<QTableView*>(widget))
            continue;
        auto* interface = QAccessible::queryAccessibleInterface(widget);
        ASSERT_TRUE(interface);
        EXPECT_FALSE(interface->text(QAccessible::Name).isEmpty())
            << widget->metaObject()->className();
    }
}

TEST_F(WindowTest, EveryPageIsReadableInEveryLanguageAndNamesItsControls) {
    window_.resize(window_.minimumSizeHint());
    for (const QString& language : words_.languages()) {
        ASSERT_TRUE(host_.chooseLanguage(language));
        for (int tab = 0; tab < MainWindow::tabCount; ++tab) {
            SCOPED_TRACE((language + " tab " + QString::number(tab)).toStdString());
            window_.open(static_cast<MainWindow::Tab>(tab));
            settle();
            EXPECT_LE(window_.minimumSizeHint().width(), 900);
            EXPECT_LE(window_.minimumSizeHint().height(), 700);
            window_.resize(window_.minimumSizeHint());
            settle();
            expectNothingCutOff(window_);
            expectNamed(window_);
            for (const auto* label : window_.findChildren<QLabel*>())
                EXPECT_NE(label->text(), "VOID");
        }
    }
}

TEST_F(WindowTest, AUsersTrainingsFollowWhatIsStoredAndStayWhileAModuleRuns) {
    window_.open(MainWindow::Users);
    settle();
    const auto tables = window_.findChildren<QTableView*>();
    ASSERT_EQ(tables.size(), 2);
    const auto* const users = tables[0]->model();
    const auto* const trainings = tables[1]->model();
    EXPECT_EQ(users->rowCount(), 1);
    EXPECT_EQ(trainings->rowCount(), 0);

    Requests requests(host_);
    for (const char* key : {"E1", "A1"}) {
        using Array = core::Value::Array;
        requests.answer("STORE", core::Value(Array{"zepha9", key, Array{"true", 1}}), {},
                        [](bool carriedOut, const auto&) { EXPECT_TRUE(carriedOut); });
    }
    until([&] { return users->rowCount() == 2; });
    tables[0]->selectRow(1);
    ASSERT_EQ(trainings->rowCount(), 1) << "nobody's training";
    const QString row = trainings->index(0, 0).data().toString();
    EXPECT_EQ(row, words_.wort(core::wort::earTraining) + ": " + words_.wort(core::wort::identify));

    const Training training = host_.store().trainings.of(nobody).at(0);
    QStringList notices;
    QObject::connect(&host_, &Host::noticed, [&](const QString& text) { notices.append(text); });
    QFile settings(folder_.filePath("exam.mvs"));
    ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
    settings.write("<test><basic><type>1</type></basic></test>");
    settings.close();
    qputenv("FAKE_MODULE", "crash");
    bool wasHidden = false;
    QObject::connect(&host_, &Host::moduleStarted, [&] { wasHidden = window_.isHidden(); });
    host_.startModule("zepha9");
    host_.removeTraining(training);
    EXPECT_TRUE(host_.startModule("zepha9", settings.fileName()));
    ASSERT_EQ(notices.size(), 2) << "both must wait until the module was left";
    EXPECT_TRUE(notices[1].contains(settings.fileName()));
    EXPECT_EQ(host_.store().trainings.of(nobody).size(), 1);
    until([&] { return !host_.module().runs() && window_.isVisible(); });
    EXPECT_TRUE(wasHidden) << "it goes away while the module runs";
    EXPECT_TRUE(host_.store().log.lines({}).first().text.contains("-9"));
    EXPECT_TRUE(window_.findChildren<NoticeBar*>().first()->isVisible()) << "of its death";
    host_.removeTraining(training);
    until([&] { return users->rowCount() == 1; });
    EXPECT_TRUE(host_.store().trainings.of(nobody).isEmpty());
    EXPECT_EQ(trainings->rowCount(), 0) << "the page shows the user who is left";
}

TEST_F(WindowTest, ChoosingAUserOnTheStartPageLogsThemIn) {
    auto combos = window_.findChildren<QComboBox*>();
    const auto found = std::ranges::find_if(
        combos, [](const QComboBox* combo) { return combo->findData("anna") >= 0; });
    ASSERT_NE(found, combos.end());
    (*found)->setCurrentIndex((*found)->findData("anna"));
    emit(*found)->activated((*found)->currentIndex());
    EXPECT_EQ(host_.userKey(), "anna");
    host_.removeUser("anna");
    EXPECT_EQ(host_.userKey(), nobody);
    EXPECT_EQ((*found)->findData("anna"), -1);
}

TEST_F(WindowTest, WhatCameFromElsewhereIsPlainTextAndKeepsTheWindowsWidth) {
    const QString text = "<img src='/etc/passwd'><b>bold</b>";
    host_.log(LogKind::Message, text);
    window_.open(MainWindow::LogLines);
    emit host_.noticed('/' + QString(5000, 'x'));
    settle();
    EXPECT_LE(window_.minimumSizeHint().width(), 900);
    EXPECT_LE(window_.minimumSizeHint().height(), 700);
    const auto cell = window_.findChildren<QTableView*>().first()->model()->index(0, 3);
    EXPECT_EQ(cell.data().toString(), text);
    QTextDocument tip;
    tip.setHtml(cell.data(Qt::ToolTipRole).toString());
    EXPECT_EQ(tip.toPlainText(), text);
}

TEST_F(WindowTest, AUserIsSavedOnlyWithANameAndAFreeKey) {
    UserDialog dialog(host_, {}, &window_);
    const auto fields = dialog.findChildren<QLineEdit*>();
    ASSERT_EQ(fields.size(), 4);
    QPushButton* save = nullptr;
    for (auto* button : dialog.findChildren<QPushButton*>())
        if (button->isDefault()) save = button;
    ASSERT_TRUE(save);
    EXPECT_FALSE(save->isEnabled());
    fields[0]->setText("Doe");
    fields[3]->setText("anna");
    EXPECT_FALSE(save->isEnabled()) << "the key is taken";
    fields[3]->setText("unbekannt");
    EXPECT_FALSE(save->isEnabled());
    fields[3]->setText("adoe");
    EXPECT_TRUE(save->isEnabled());
    EXPECT_EQ(dialog.user(), (User{"adoe", "Doe", "", ""}));
}

}  // namespace
}  // namespace melvora
