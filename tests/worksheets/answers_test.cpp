#include "support/desk.h"

#include <gtest/gtest.h>

#include <set>

namespace worksheets {
namespace {

using support::Practice;

std::set<int> openAnswers(const Practice& desk) {
    std::set<int> open;
    for (int i = 0; i < 10; ++i)
        if (desk.open(i)) open.insert(i);
    return open;
}

TEST(Answers, OnlyTheScalesOfTheRunAreOfferedAsPicturesOrNames) {
    for (const int an_zeig : {0, 1}) {
        Practice desk;
        desk.choose({3, -3, 1});  // up and down is one answer
        desk.z.an_zeig = an_zeig;
        const form::Connection made = desk.programm.forms.made.connect([&](form::Form& form) {
            if (form.name() != "arbeitsblatt1") return;
            EXPECT_TRUE(openAnswers(desk).empty()) << "before the run is ready";
        });
        desk.run();
        EXPECT_TRUE(openAnswers(desk).empty());
        desk.next();
        EXPECT_EQ(openAnswers(desk), (std::set{0, 2}));
        for (int i = 0; i < 10; ++i) {
            EXPECT_EQ(desk.on("tonart", i).visible(), an_zeig == 1 && i % 2 == 0 && i < 3);
            EXPECT_EQ(desk.on("skal_pan", i).visible(), an_zeig == 0 && i % 2 == 0 && i < 3);
        }
        using enum form::Key::Kind;
        EXPECT_FALSE(desk.sheet().key({Digit, 3})) << "digits count what is offered";
        EXPECT_TRUE(desk.sheet().key({Digit, desk.task().skala_nr == 0 ? 1 : 2}));
        EXPECT_EQ(desk.caption("zaehler", 0) + desk.caption("zaehler", 1), "10");
    }
}

TEST(Answers, AWrongOneIsLockedUntilTheTaskIsClosed) {
    Practice desk;
    desk.category(6);
    desk.run();
    desk.next();
    std::set<int> expected{0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
    EXPECT_EQ(openAnswers(desk), expected);
    for (int n = 1; n <= 3; ++n) {
        const int wrong = (desk.task().skala_nr + n) % 10;
        desk.answer(wrong);
        expected.erase(wrong);
        EXPECT_EQ(openAnswers(desk), expected);
    }
    desk.click("wieder");
    EXPECT_TRUE(openAnswers(desk).empty()) << "closed while it sounds";
    desk.wait(desk.taskLength());
    EXPECT_EQ(openAnswers(desk), expected) << "still locked after a repetition";
    desk.answer((desk.task().skala_nr + 4) % 10);
    EXPECT_TRUE(openAnswers(desk).empty()) << "the fourth loses the task";
    EXPECT_EQ(desk.caption("zaehler", 0) + desk.caption("zaehler", 1), "04");
    desk.next();
    EXPECT_EQ(openAnswers(desk).size(), 10U);
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
            Practice desk;
            desk.category(2);
            desk.z.uebungsmodus = modus;
            desk.z.richtung = row.richtung;
            std::vector<int> codes;
            for (int i = 1; i <= row.ascending; ++i) codes.push_back(i);
            for (int i = 1; i <= row.descending; ++i) codes.push_back(-i);
            desk.choose(codes);
            desk.run();
            for (int n = 0; n < 3 && desk.on("CmdNextAufg").usable(); ++n) {
                desk.next();
                int wrong = 0;
                while (desk.answerWrong()) ++wrong;
                EXPECT_EQ(wrong, row.wrong);
                EXPECT_EQ(desk.open(desk.task().skala_nr), row.ascending < 2 && row.richtung == 2);
                desk.answerRight();
                ASSERT_TRUE(desk.running());
            }
            EXPECT_TRUE(desk.host.faults.empty());
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
                           {"both, descending", 0, 2, 0, {-1, -2}, true, "", ", W83"},
                           {"a melody has no direction", 0, 2, 1, {1, 2}, true, "", ""},
                           {"a lost task", 0, 2, 0, {1, 2}, false, "", ""},
                           {"tetrachord down, lost", 6, 1, 0, {-7, -5}, false, "", "W700W375 "},
                           {"tetrachord without modes", 6, 2, 0, {2, 5}, true, "", ""}}) {
        SCOPED_TRACE(row.name);
        Practice desk;
        desk.category(row.category);
        desk.words.texts = {{"1007s", "%2, %1"}};
        desk.choose({row.chosen[0], row.chosen[1]});
        desk.z.richtung = row.richtung;
        desk.z.abfolge = row.abfolge;
        desk.run();
        desk.next();
        for (; desk.task().skala_nr != std::abs(row.chosen[0]) - 1; desk.next()) desk.answerRight();
        if (row.right)
            desk.answerRight();
        else
            desk.lose();
        const std::string name =
            desk.programm.katalog.skal_name[row.category][desk.task().skala_nr];
        EXPECT_EQ(desk.caption("ergebnis"), row.before + name + row.after);
    }
}

TEST(AnswerTime, BeginsWithTheOpenAnswersAndAddsUpOverRepetitions) {
    Practice desk;
    desk.z.uebungsmodus = 1;
    desk.run();
    desk.next();
    for (const int before : {1400, 400}) {
        desk.wait(before);
        desk.click("wieder");  // the silence of 50 ms before it counts too
        desk.wait(desk.taskLength());
    }
    desk.wait(600);
    desk.answerRight();
    EXPECT_EQ(desk.exerciseRun().lastAnswer().dauer, 25);
    EXPECT_FLOAT_EQ(desk.task().attempt.zeit_malus, 1.2F);
    desk.next();
    desk.wait(4000);
    desk.answerWrong();
    desk.wait(700);
    desk.answerRight();
    EXPECT_EQ(desk.exerciseRun().lastAnswer().dauer, 7) << "anew after a wrong answer";
}

}  // namespace
}  // namespace worksheets
