#include "support/drill_fixture.h"

#include <gtest/gtest.h>

#include <set>

namespace worksheets {
namespace {

using support::DrillFixture;

std::set<int> openAnswers(const DrillFixture& drill) {
    std::set<int> open;
    for (int i = 0; i < 10; ++i)
        if (drill.open(i)) open.insert(i);
    return open;
}

TEST(Answers, OnlyTheScalesOfTheRunAreOfferedAsPicturesOrNames) {
    for (const int an_zeig : {0, 1}) {
        DrillFixture drill;
        drill.choose({3, -3, 1});  // up and down is one answer
        drill.z.an_zeig = an_zeig;
        const form::Connection made = drill.programm.forms.made.connect([&](form::Form& form) {
            if (form.name() != "arbeitsblatt1") return;
            EXPECT_TRUE(openAnswers(drill).empty()) << "before the run is ready";
        });
        drill.run();
        EXPECT_TRUE(openAnswers(drill).empty());
        drill.next();
        EXPECT_EQ(openAnswers(drill), (std::set{0, 2}));
        for (int i = 0; i < 10; ++i) {
            EXPECT_EQ(drill.control("tonart", i).visible(), an_zeig == 1 && i % 2 == 0 && i < 3);
            EXPECT_EQ(drill.control("skal_pan", i).visible(), an_zeig == 0 && i % 2 == 0 && i < 3);
        }
        using enum form::Key::Kind;
        EXPECT_FALSE(drill.sheet()->key({Digit, 3})) << "digits count what is offered";
        EXPECT_TRUE(drill.sheet()->key({Digit, drill.task().skala_nr == 0 ? 1 : 2}));
        EXPECT_EQ(drill.caption("zaehler", 0) + drill.caption("zaehler", 1), "10");
    }
}

TEST(Answers, AWrongOneIsLockedUntilTheTaskIsClosed) {
    DrillFixture drill;
    drill.category(6);
    drill.run();
    drill.next();
    std::set<int> expected{0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
    EXPECT_EQ(openAnswers(drill), expected);
    for (int n = 1; n <= 3; ++n) {
        const int wrong = (drill.task().skala_nr + n) % 10;
        drill.answer(wrong);
        expected.erase(wrong);
        EXPECT_EQ(openAnswers(drill), expected);
    }
    drill.click("wieder");
    EXPECT_TRUE(openAnswers(drill).empty()) << "closed while it sounds";
    drill.wait(drill.taskLength());
    EXPECT_EQ(openAnswers(drill), expected) << "still locked after a repetition";
    drill.answer((drill.task().skala_nr + 4) % 10);
    EXPECT_TRUE(openAnswers(drill).empty()) << "the fourth loses the task";
    EXPECT_EQ(drill.caption("zaehler", 0) + drill.caption("zaehler", 1), "04");
    drill.next();
    EXPECT_EQ(openAnswers(drill).size(), 10U);
}

/// One fewer than there are answers may be wrong, at most four. In both directions the ascending
/// scales count, and where there is at most one, no wrong answer loses the task.
TEST(Answers, EveryChoiceOfScalesCanBeWorkedThroughAndAllowsItsWrongAnswers) {
    struct Row {
        int ascending, descending, richtung, wrong;
    };
    for (const Row& row : {Row{7, 1, 2, 6},
                           {8, 4, 2, 7},
                           {5, 5, 2, 4},
                           {1, 8, 2, 7},
                           {0, 8, 2, 7},
                           {3, 0, 0, 2},
                           {7, 0, 0, 4},
                           {0, 3, 1, 2}})
        for (const int modus : {0, 1, 3}) {
            SCOPED_TRACE(testing::Message()
                         << row.ascending << " up " << row.descending << " down " << modus);
            DrillFixture drill;
            drill.category(2);
            drill.z.uebungsmodus = modus;
            drill.z.richtung = row.richtung;
            drill.z.ska_ausw = 1;
            drill.z.einzelAnz = row.ascending + row.descending - 1;
            for (int i = 0; i < row.ascending; ++i) drill.z.einzel_wahl[i] = i + 1;
            for (int i = 0; i < row.descending; ++i)
                drill.z.einzel_wahl[row.ascending + i] = -(i + 1);
            drill.run();
            for (int n = 0; n < 3 && drill.control("CmdNextAufg").usable(); ++n) {
                drill.next();
                int wrong = 0;
                while (drill.answerWrong()) ++wrong;
                EXPECT_EQ(wrong, row.wrong);
                EXPECT_EQ(drill.open(drill.task().skala_nr),
                          row.ascending < 2 && row.richtung == 2);
                drill.answerRight();
                ASSERT_NE(drill.sheet(), nullptr);
            }
            EXPECT_TRUE(drill.host.faults.empty());
        }
}

TEST(Solution, IsNamedByDirectionAndTetrachord) {
    struct Row {
        const char* name;
        int category, richtung, abfolge;
        std::vector<int> chosen;
        bool right;
        std::string before, after;
    };
    for (const Row& row : {Row{"one direction", 0, 0, 0, {1, 2}, true, "", ""},
                           {"both, descending", 0, 2, 0, {-1, -2}, true, "W83 ", ""},
                           {"a melody has no direction", 0, 2, 1, {1, 2}, true, "", ""},
                           {"a lost task", 0, 2, 0, {1, 2}, false, "", ""},
                           {"tetrachord down, lost", 6, 1, 0, {-7, -5}, false, "", "W700W375 "},
                           {"tetrachord without modes", 6, 2, 0, {2, 5}, true, "", ""}}) {
        SCOPED_TRACE(row.name);
        DrillFixture drill;
        drill.category(row.category);
        drill.choose({row.chosen[0], row.chosen[1]});
        drill.z.richtung = row.richtung;
        drill.z.abfolge = row.abfolge;
        drill.run();
        drill.next();
        for (; drill.task().skala_nr != std::abs(row.chosen[0]) - 1; drill.next())
            drill.answerRight();
        if (row.right)
            drill.answerRight();
        else
            while (drill.answerWrong()) continue;
        const std::string name =
            drill.programm.katalog.skal_name[row.category][drill.task().skala_nr];
        EXPECT_EQ(drill.caption("ergebnis"), row.before + name + row.after);
    }
}

TEST(AnswerTime, BeginsWithTheOpenAnswersAndAddsUpOverRepetitions) {
    DrillFixture drill;
    drill.z.uebungsmodus = 1;
    drill.run();
    drill.next();
    for (const int before : {1400, 400}) {
        drill.wait(before);
        drill.click("wieder");  // the silence of 50 ms before it counts too
        drill.wait(drill.taskLength());
    }
    drill.wait(600);
    drill.answerRight();
    EXPECT_EQ(drill.lauf().letzteAntwort().dauer, 25);
    EXPECT_FLOAT_EQ(drill.task().verlauf.zeit_malus, 1.2F);
    drill.next();
    drill.wait(4000);
    drill.answerWrong();
    drill.wait(700);
    drill.answerRight();
    EXPECT_EQ(drill.lauf().letzteAntwort().dauer, 7) << "anew after a wrong answer";
}

}  // namespace
}  // namespace worksheets
