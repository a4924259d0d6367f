#include "core/wort.h"
#include "fontfile/font_files.h"
#include "melvora/main_window.h"
#include "melvora/record_html.h"
#include "melvora/requests.h"
#include "melvora/user_dialog.h"
#include "suite/help_window.h"
#include "support/painted.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeySequence>
#include <QLabel>
#include <QScreen>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTextDocument>
#include <QThread>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace melvora {
namespace {

namespace wort = core::wort;

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

    QPushButton* button(wort::Id word, const QWidget* window = nullptr) {
        for (auto* found : (window ? window : &window_)->findChildren<QPushButton*>())
            if (found->text() == words_.wort(word)) return found;
        return nullptr;
    }
    QComboBox* comboWith(const QString& data) {
        for (auto* combo : window_.findChildren<QComboBox*>())
            if (combo->findData(data) >= 0) return combo;
        return nullptr;
    }
    /// The window of that type, nullptr when there is none.
    template <class Window>
    static Window* topLevel() {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* found = dynamic_cast<Window*>(window)) return found;
        return nullptr;
    }
    QWidget* logWindow() {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->isVisible() && window->windowTitle() == words_.wort(wort::logPage))
                return window;
        return nullptr;
    }

    QTemporaryDir folder_;
    Words words_{MELVORA_LANGUAGES};
    Host host_{{folder_.path(), "unix:path=/nowhere", {}}, words_};
    MainWindow window_{host_};
};

/// A run by its user: mode and branch, what was answered, and when.
void addRun(Host& host, const char* user, const char* mode, int right, int answered, int minute) {
    const Exercise about{Branch::Ear, Kind::Identify, "identifier", mode, "Kirchentonarten"};
    host.store().results.add(
        {0, QDateTime({2026, 11, 21}, {12, minute}), user, about, right, answered},
        QString("RSX%1.xml").arg(minute), "<exercise/>");
}

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
    const auto nameOf = [](QWidget* widget) {
        auto* interface = QAccessible::queryAccessibleInterface(widget);
        return interface ? interface->text(QAccessible::Name) : QString();
    };
    for (auto* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->focusPolicy() == Qt::NoFocus) continue;
        const bool isCombo = qobject_cast<QComboBox*>(widget);
        if (!isCombo && !qobject_cast<QAbstractButton*>(widget) &&
            !qobject_cast<QTableView*>(widget) && !qobject_cast<QLineEdit*>(widget))
            continue;
        EXPECT_FALSE(nameOf(widget).isEmpty()) << widget->metaObject()->className();
        if (auto* combo = qobject_cast<QComboBox*>(widget)) {
            EXPECT_NE(nameOf(widget), combo->currentText()) << "that is its value";
        }
    }
    auto* frame = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&window));
    EXPECT_TRUE(frame->role() == QAccessible::Window || frame->role() == QAccessible::Dialog);
}

/// Every button with a text, and every label of a field, has a letter of its own.
void expectMnemonics(const QWidget& window) {
    QMap<QString, QString> taken;
    const auto take = [&](const QString& text) {
        const QString key = QKeySequence::mnemonic(text).toString();
        EXPECT_FALSE(key.isEmpty()) << text.toStdString();
        EXPECT_FALSE(taken.contains(key))
            << text.toStdString() << " and " << taken[key].toStdString();
        taken[key] = text;
    };
    for (const auto* button : window.findChildren<QAbstractButton*>())
        if (button->isVisible() && !button->text().isEmpty()) take(button->text());
    for (const auto* label : window.findChildren<QLabel*>())
        if (label->isVisible() && label->buddy()) take(label->text());
}

TEST_F(WindowTest, EveryWindowIsReadableInEveryLanguageAndItsControlsHaveNamesAndLetters) {
    host_.logIn("anna");
    addRun(host_, "anna", "Test", 9, 10, 2);
    window_.openHelp("melvora");
    window_.openLog();
    for (const QString& language : words_.languages()) {
        ASSERT_TRUE(host_.chooseLanguage(language));
        const auto look = [&](QWidget& window, const std::string& name) {
            SCOPED_TRACE(language.toStdString() + " " + name);
            settle();
            EXPECT_LE(window.minimumSizeHint().width(), 900);
            EXPECT_LE(window.minimumSizeHint().height(), 700);
            window.resize(window.minimumSizeHint());
            settle();
            expectNothingCutOff(window);
            expectNamed(window);
            expectMnemonics(window);
            expectContrast(window);
            for (const auto* label : window.findChildren<QLabel*>())
                EXPECT_NE(label->text(), "VOID");
        };
        for (int tab = 0; tab < MainWindow::tabCount; ++tab) {
            window_.open(static_cast<MainWindow::Tab>(tab));
            emit host_.noticed("a notice", tab == 0 ? Host::Details::Results : Host::Details::Log);
            look(window_, "tab " + std::to_string(tab));
        }
        look(*topLevel<suite::HelpWindow>(), "help");
        look(*logWindow(), "log");
        UserDialog dialog(host_, {}, &window_);
        dialog.show();
        look(dialog, "user");
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
    EXPECT_EQ(row, words_.wort(wort::earTraining) + ": " + words_.wort(wort::identifyScales));

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

TEST_F(WindowTest, AUserIsChosenFirstAndThenLoggedInByAButton) {
    auto* const combo = comboWith("anna");
    ASSERT_TRUE(combo);
    auto* const in = button(wort::logIn);
    auto* const out = button(wort::logOut);
    EXPECT_FALSE(in->isEnabled() || out->isEnabled());
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(combo->currentData().toString(), "anna");
    EXPECT_EQ(host_.userKey(), nobody) << "only chosen";
    in->click();
    EXPECT_EQ(host_.userKey(), "anna");
    EXPECT_FALSE(in->isEnabled());
    out->click();
    EXPECT_EQ(host_.userKey(), nobody);
    host_.logIn("anna");
    host_.removeUser("anna");
    EXPECT_EQ(host_.userKey(), nobody);
    EXPECT_EQ(combo->findData("anna"), -1);
}

TEST_F(WindowTest, ASoundfontIsChosenKeptAndMissedWhenItHasGone) {
    const auto fonts = fontfile::installedFonts();
    if (fonts.empty()) GTEST_SKIP() << "no soundfont is installed";
    const auto file = QString::fromStdString(fonts.back());
    QComboBox* list = comboWith(file);
    ASSERT_TRUE(list);
    EXPECT_EQ(list->count(), static_cast<int>(fonts.size()) + 1) << "and the usual one";
    list->setCurrentIndex(list->findData(file));
    emit list->activated(list->currentIndex());
    EXPECT_EQ(Host({folder_.path(), "unix:path=/nowhere", {}}, words_).soundfont(), file);
    host_.chooseSoundfont("/gone/Old.sf2");
    host_.chooseLanguage("English");
    EXPECT_EQ(comboWith("/gone/Old.sf2")->currentText(), "Old (missing)");
}

TEST_F(WindowTest, TheWheelChangesAListOnlyWhileItHasTheFocus) {
    auto* const combo = comboWith("anna");
    ASSERT_TRUE(combo);
    const auto turn = [&] {
        const QPointF middle = combo->rect().center();
        QWheelEvent event(middle, combo->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(combo, &event);
        return combo->currentIndex();
    };
    QApplication::setActiveWindow(&window_);
    button(wort::practiseScales)->setFocus();
    EXPECT_EQ(turn(), 0);
    combo->setFocus();
    ASSERT_TRUE(combo->hasFocus());
    EXPECT_EQ(turn(), 1);
}

TEST_F(WindowTest, WhileAModuleRunsUserAndLanguageStayAndTheWindowSaysWhy) {
    host_.logIn("anna");
    auto* const combo = comboWith("anna");
    QStringList notices;
    QObject::connect(&host_, &Host::noticed, [&](const QString& text) { notices.append(text); });
    bool started = false;
    QObject::connect(&host_, &Host::moduleStarted, [&] {
        started = true;
        for (const QWidget* control :
             std::initializer_list<QWidget*>{combo, button(wort::logOut), comboWith("Deutsch")}) {
            EXPECT_FALSE(control->isEnabled());
            EXPECT_EQ(control->toolTip(), words_.wort(wort::lockedNow));
        }
        host_.logIn({});
        host_.removeUser("anna");
        host_.chooseLanguage("English");
        EXPECT_EQ(notices, QStringList(3, words_.wort(wort::lockedNow)));
    });
    qputenv("FAKE_MODULE", "vanish");
    host_.startModule("zepha9");
    until([&] { return started; });
    EXPECT_EQ(host_.userKey(), "anna");
    EXPECT_EQ(words_.language(), "Deutsch");
    until([&] { return !host_.module().runs(); });
    settle();
    EXPECT_TRUE(combo->isEnabled() && button(wort::logOut)->isEnabled());
    EXPECT_EQ(combo->toolTip(), "");
}

TEST_F(WindowTest, ResultsAreOnesOwnInTheLanguageOfTodayAndTheOthersAreAskedFor) {
    addRun(host_, "unbekannt", "Entraînement", 1, 10, 1);
    addRun(host_, "unbekannt", "Training", 9, 10, 2);
    addRun(host_, "unbekannt", "Test", 10, 12, 3);
    addRun(host_, "unbekannt", "Test", 0, 0, 4);
    addRun(host_, "anna", "Test", 1, 1, 5);
    addRun(host_, "gone", "Test", 1, 1, 6);
    host_.chooseLanguage("English");
    window_.open(MainWindow::Results);
    settle();
    auto* const table = window_.findChild<QTableView*>();
    const auto column = [&](int number) {
        QStringList texts;
        for (int row = 0; row < table->model()->rowCount(); ++row)
            texts.append(table->model()->index(row, number).data().toString());
        return texts;
    };
    EXPECT_EQ(column(4), (QStringList{"Test", "Training", "Training"}));
    EXPECT_EQ(column(5), QStringList(3, words_.wort(wort::churchModes)));
    EXPECT_EQ(column(3), QStringList(3, words_.wort(wort::identifyScales)));
    table->sortByColumn(6, Qt::AscendingOrder);
    const auto share = [&](int right, int of) { return shareText(words_, right, of); };
    EXPECT_EQ(column(6), (QStringList{share(1, 10), share(10, 12), share(9, 10)}))
        << "by the share";
    table->selectRow(2);
    const auto chosen = [&] { return column(6).value(table->currentIndex().row()); };

    const auto boxes = window_.findChildren<QCheckBox*>();
    ASSERT_EQ(boxes.size(), 2);
    boxes[1]->click();
    EXPECT_EQ(column(6).size(), 4) << "with the empty one";
    EXPECT_EQ(column(6).first(), share(0, 0));
    boxes[0]->click();
    EXPECT_EQ(column(6).size(), 6);
    EXPECT_TRUE(column(1).contains("gone")) << "a user who was deleted is called by the key";
    EXPECT_TRUE(column(1).contains(host_.store().users.find("anna")->fullName()));
    EXPECT_EQ(chosen(), share(9, 10)) << "what was chosen stays chosen";
    table->sortByColumn(0, Qt::DescendingOrder);
    EXPECT_EQ(column(1).first(), "gone");
    auto* const filter = window_.findChild<QLineEdit*>();
    filter->setText("tRAIN 9 of");
    EXPECT_EQ(column(6), QStringList{share(9, 10)}) << "each word, in any column";
    filter->setText("no such thing");
    EXPECT_EQ(column(6).size(), 0);
}

TEST_F(WindowTest, ANoticeLeadsToWhereItBelongs) {
    qputenv("FAKE_MODULE", "vanish");
    bool handedOver = false;
    QObject::connect(&host_, &Host::moduleStarted, [&] {
        if (std::exchange(handedOver, true)) return;
        addRun(host_, "unbekannt", "Test", 9, 10, 2);
        host_.takeOver();
    });
    host_.startModule("zepha9");
    until([&] { return handedOver && !host_.module().runs(); });
    auto* const bar = window_.findChild<NoticeBar*>();
    ASSERT_TRUE(bar->isVisible());
    EXPECT_TRUE(bar->findChild<QLabel*>()->text().contains(words_.wort(wort::earTraining)));
    bar->findChild<QPushButton*>()->click();
    settle();
    EXPECT_FALSE(bar->isVisible());
    auto* const table = window_.findChild<QTableView*>();
    ASSERT_TRUE(table && table->isVisible());
    EXPECT_EQ(table->currentIndex().row(), 0);

    qputenv("FAKE_MODULE", "crash");
    host_.startModule("zepha9");
    until([&] { return !host_.module().runs() && window_.isVisible(); });
    bar->findChild<QPushButton*>()->click();
    settle();
    EXPECT_TRUE(logWindow());
}

TEST_F(WindowTest, HelpFollowsThePageTheLanguageAndTheSearch) {
    window_.open(MainWindow::Users);
    QTest::keyClick(&window_, Qt::Key_F1);
    settle();
    auto* const help = topLevel<suite::HelpWindow>();
    ASSERT_TRUE(help && help->isVisible());
    EXPECT_EQ(help->windowTitle(), "Benutzer");
    auto* const browser = help->findChild<QTextBrowser*>();
    auto* const back = button(wort::helpBack, help);
    EXPECT_FALSE(back->isEnabled());
    button(wort::helpIndex, help)->click();
    EXPECT_TRUE(browser->source().path().endsWith("/de/index.html"));
    back->click();
    EXPECT_EQ(help->windowTitle(), "Benutzer");
    help->findChild<QLineEdit*>()->setText("Kirchentonarten");
    QSet<QString> visited;
    for (int i = 0; i < 8; ++i) {
        button(wort::helpFindNext, help)->click();
        EXPECT_EQ(browser->textCursor().selectedText().toLower(), "kirchentonarten");
        visited.insert(browser->source().path());
    }
    EXPECT_GT(visited.size(), 1) << "the search goes on in other pages";
    help->findChild<QLineEdit*>()->setText("no such thing");
    const QUrl before = browser->source();
    button(wort::helpFindNext, help)->click();
    EXPECT_EQ(browser->source(), before);
    host_.chooseLanguage("Français");
    EXPECT_TRUE(browser->source().path().startsWith("/help/fr/"));
    QTest::keyClick(help, Qt::Key_Escape);
    EXPECT_FALSE(help->isVisible());
}

TEST_F(WindowTest, TheWindowOpensWhereItWasAndAlwaysOnAScreen) {
    const QRect screen = window_.screen()->availableGeometry();
    window_.setGeometry(60, 70, screen.width() - 100, screen.height() - 120);
    settle();
    const QSize size = window_.size();
    window_.hide();
    {
        MainWindow next(host_);
        EXPECT_EQ(next.size(), size);
        EXPECT_EQ(next.geometry().topLeft(), QPoint(60, 70));
        next.setGeometry(9000, 9000, 700, 600);
        next.show();
        settle();
        next.hide();
    }
    MainWindow later(host_);
    EXPECT_TRUE(screen.contains(later.geometry())) << "a screen that has gone";
    host_.store().settings.set("window", "nonsense");
    MainWindow last(host_);
    EXPECT_TRUE(last.width() <= screen.width() && last.height() <= screen.height());
}

TEST_F(WindowTest, WhatCameFromElsewhereIsPlainTextAndKeepsTheWindowsWidth) {
    const QString text = "<img src='/etc/passwd'><b>bold</b>";
    host_.log(LogKind::Message, text);
    window_.openLog();
    emit host_.noticed('/' + QString(5000, 'x'));
    settle();
    EXPECT_LE(window_.minimumSizeHint().width(), 900);
    EXPECT_LE(window_.minimumSizeHint().height(), 700);
    ASSERT_TRUE(logWindow());
    const auto cell = logWindow()->findChild<QTableView*>()->model()->index(0, 3);
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
