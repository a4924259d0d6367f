#include "engine/exam_plan.h"

#include "base/rounding.h"
#include "core/katalog.h"

#include <cstdint>

namespace engine {

int soundingTime(const core::Zustand& z) {
    return z.tempo_dauer[z.tempoIdx] * core::katalog::kategorie(z.skal_typ).tonAnz;
}

i16 ExamenDauer(const TaskDuration& dauer, int tasks) {
    const auto seconds = [&](int milliseconds) {
        return static_cast<int>(std::int64_t{milliseconds} * tasks / 1000);
    };
    const int playing = seconds(dauer.presentation) + seconds(dauer.gap);
    const int t = base::rounded(dauer.zeit_faktor * tasks / 10.0 + playing);
    return ((t - 1) / 10 + 1) * 10;
}

ExamPlan planExam(const TaskDuration& dauer, int potSkala) {
    ExamPlan plan{4 * potSkala, ExamenDauer(dauer, 4 * potSkala)};
    const auto setTasks = [&](int tasks) {
        plan.pruefAufgaben = tasks;
        plan.restZeit = ExamenDauer(dauer, tasks);
    };
    if (plan.restZeit > 600) {
        const int threeQuarters = base::rounded(plan.pruefAufgaben / 4.0 * 3);
        setTasks(threeQuarters + threeQuarters % 2);
        plan.shortened = true;
    }
    if (plan.restZeit < 180) setTasks(base::rounded(plan.pruefAufgaben / 4.0 * 6));
    return plan;
}

}  // namespace engine
