#include "engine/exam_plan.h"

#include <gtest/gtest.h>

namespace engine {
namespace {

TEST(Plan, AimsAtThreeToTenMinutes) {
    struct Row {
        const char* name;
        TaskDuration dauer;
        int codes, tasks;
        bool shortened;
    };
    for (const Row& row : {Row{"both directions, slow", {12000, 1800, 20}, 14, 42, true},
                           {"seven scales, slow", {12000, 1800, 20}, 7, 28, false},
                           {"one scale", {2400, 1800, 20}, 1, 6, false},
                           {"three quarters made even", {18000, 1800, 20}, 9, 28, true},
                           {"without sound", {0, 1800, 35}, 20, 80, false}}) {
        SCOPED_TRACE(row.name);
        const ExamPlan plan = planExam(row.dauer, row.codes);
        EXPECT_EQ(plan.shortened, row.shortened);
        EXPECT_EQ(plan.pruefAufgaben, row.tasks);
    }
}

TEST(Plan, EveryRunHasAnEvenNumberOfTasksThatFitItsTime) {
    for (const int beat : {300, 333, 428, 2000})
        for (const int tones : {4, 6, 7, 8, 9})
            for (int codes = 1; codes <= 20; ++codes) {
                const TaskDuration dauer{beat * tones, 1800, 20};
                const ExamPlan plan = planExam(dauer, codes);
                ASSERT_EQ(plan.pruefAufgaben % 2, 0);
                ASSERT_GE(plan.pruefAufgaben / 2, codes) << "each half holds every code";
                ASSERT_EQ(plan.restZeit % 10, 0);
                const double exact = int(plan.pruefAufgaben) * (beat * tones + 3800) / 1000.0;
                ASSERT_NEAR(plan.restZeit, exact + 4, 8) << codes << ' ' << beat * tones;
            }
}

}  // namespace
}  // namespace engine
