// The worksheets with a staff, in real windows: written, named, solved, and by keyboard alone.
#include "pictures.h"
#include "qt/staff_widget.h"
#include "sim/writer.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

using engine::TaskState;

/// Hands in wrong versions until the solution stands there.
void lose(Stage& stage) {
    auto& sheet = stage.sheet();
    base::Rnd chance(1);
    while (sheet.run().aufgZustand() != TaskState::Closed) {
        sim::writeScale(sheet, sim::Writing::Wrong, chance);
        stage.on<form::Button>("cmdOK").click();
    }
}

TEST(Worksheets, AreReadableInEveryLanguageAndSize) {
    for (const std::string& language : allLanguages) {
        SCOPED_TRACE(language);
        Stage stage(language);
        const auto look = [&](const std::string& form, const std::string& picture) {
            lookAt(stage, form, std::string(language).append(picture).append(form));
        };
        for (const bool theory : {false, true}) {
            stage.openSetup({theory, 4});
            look(stage.setUp().name(), "-a-4-");
            stage.openWorksheet();
            stage.next();
            look(stage.sheet().name(), "-b-");
            lose(stage);
            look(stage.sheet().name(), "-c-solution-");
            stage.leave();
            stage.button("cmdZurueck").click();
            stage.wait(50);
        }
        stage.openSetup({true, 1});
        look(stage.setUp().name(), "-d-");
        for (const int names : {0, 1}) {
            stage.z.an_zeig = names;
            stage.openWorksheet();
            stage.next();
            look(stage.sheet().name(), "-e-" + std::to_string(names) + "-");
            stage.leave();
        }
    }
}

/// What was reached by Tab is pressed; from what can no longer be used the focus goes to the next
/// step, where keys mean what the form says.
TEST(Worksheets, AreDoneByTabAndEnter) {
    Stage stage("English");
    stage.openSetup();
    stage.openWorksheet();
    QWidget& window = stage.window("arbeitsblatt1");
    const auto here = [&] { return window.focusWidget()->objectName().toStdString(); };
    const auto tabTo = [&](const std::string& id) {
        for (int i = 0; i < 40 && here() != id; ++i)
            Stage::press(*window.focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(here(), id);
    };
    const auto press = [&](Qt::Key key) { Stage::press(*window.focusWidget(), key); };
    window.setFocus();
    tabTo("CmdNextAufg");
    press(Qt::Key_Space);
    EXPECT_FALSE(stage.on<form::Button>("CmdNextAufg").enabled()) << "pressed";
    stage.wait(14000);
    EXPECT_EQ(here(), "ton_art_0");
    press(Qt::Key_Space);
    EXPECT_EQ(stage.caption("whlgzaehler"), "1") << "it was not reached by Tab: heard again";
    stage.wait(14000);
    tabTo("ton_art_1");
    press(Qt::Key_Space);
    const bool right = stage.taskState() == TaskState::Closed;
    EXPECT_EQ(stage.caption("zaehler", right ? 0 : 1), "1") << "answered";
    EXPECT_EQ(here(), right ? "CmdNextAufg" : "ton_art_0");
}

TEST(Worksheets, AScaleIsWrittenByKeyboardAlone) {
    Stage stage("English");
    stage.openSetup({false, 4});
    stage.openWorksheet();
    auto& sheet = stage.sheet();
    auto& staff = stage.widget<qt::StaffWidget>(stage.sheet().name(), "PicBNot");
    const auto press = [&](Qt::Key key) { Stage::press(staff, key); };
    stage.press(stage.sheet().name(), Qt::Key_Return);
    stage.wait(14000);
    for (int column = 1; column <= 6; ++column) {
        const int accidental = core::accidental(sheet.run().task().pitchAt(column).qz);
        if (column % 2 == 0 && accidental != 0) {
            press(static_cast<Qt::Key>(Qt::Key_3 + accidental));
            press(Qt::Key_Return);
        } else {
            for (int step = 0; step < std::abs(accidental); ++step)
                press(accidental > 0 ? Qt::Key_Up : Qt::Key_Down);
        }
        press(Qt::Key_Right);
    }
    EXPECT_TRUE(engine::writtenAnswer(sheet.run().task(), [&](int c) {
                    return sheet.staff()->NotSelb(c).pitch();
                }).right);
    EXPECT_NE(staff.accessibleDescription().indexOf(QRegularExpression("flat|sharp")), -1);
    stage.press(stage.sheet().name(), Qt::Key_Return);
    EXPECT_EQ(sheet.run().aufgZustand(), TaskState::Closed);
    EXPECT_EQ(stage.caption("zaehler", 0), "1");
    const auto before = sheet.staff()->NotSelb(1).midi;
    press(Qt::Key_Up);
    EXPECT_EQ(sheet.staff()->NotSelb(1).midi, before) << "a closed task stands";
}

}  // namespace
