#include "sim/outcome.h"

namespace sim {

const char* endingName(Ending ending) {
    switch (ending) {
        case Ending::Goal:
            return "goal";
        case Ending::Failed:
            return "failed";
        case Ending::Count:
            return "count";
        case Ending::Clock:
            return "clock";
        case Ending::Left:
            return "left";
        case Ending::Endless:
            return "endless";
        case Ending::Fault:
            return "fault";
    }
    return "";
}

std::optional<Ending> endingOf(const engine::Run& run) {
    switch (run.aufgZustand()) {
        case engine::TaskState::TrainingOver:
            return run.goalReached() ? Ending::Goal : Ending::Failed;
        case engine::TaskState::ExamOver:
            return Ending::Count;
        case engine::TaskState::Open:
        case engine::TaskState::Closed:
        case engine::TaskState::TryAgain:
            break;
    }
    return {};
}

void Outcome::weigh(const engine::Run& run, const core::Zustand& z) {
    const engine::TaskPool& pool = run.pool();
    const int codes = pool.potSkala();
    if (!core::isTraining(z) || z.mathaeufgk_box.rows() <= codes) return;
    double sum = 0;
    for (int i = 1; i <= codes; ++i) sum += z.mathaeufgk_box(i, core::gewicht::spalteGewicht);
    meanWeight = sum / codes;
    bar = pool.percent();
}

}  // namespace sim
