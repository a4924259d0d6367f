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

std::optional<Ending> endingOf(const engine::Lauf& run) {
    switch (run.aufgZustand()) {
        case engine::AufgZustand::TrainingBeendet:
            return run.zielErreicht() ? Ending::Goal : Ending::Failed;
        case engine::AufgZustand::PruefungBeendet:
            return Ending::Count;
        case engine::AufgZustand::Offen:
        case engine::AufgZustand::Geschlossen:
        case engine::AufgZustand::Weiter:
            break;
    }
    return {};
}

void Outcome::weigh(const engine::Lauf& run, const core::Zustand& z) {
    const engine::Matbox& box = run.matbox();
    const int codes = box.potSkala();
    if (!core::imTraining(z) || z.mathaeufgk_box.rows() <= codes) return;
    double sum = 0;
    for (int i = 1; i <= codes; ++i) sum += z.mathaeufgk_box(i, core::gewicht::spalteGewicht);
    meanWeight = sum / codes;
    bar = box.prozent();
}

}  // namespace sim
