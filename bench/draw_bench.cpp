#include "engine/run.h"

#include <benchmark/benchmark.h>

#include <optional>

namespace {

/// A training over all church modes in both directions, without forms; its learner names two of
/// three tasks right, and a training that has ended begins anew.
struct Training {
    explicit Training(int abfolge = 0) {
        z.skal_anz = core::katalog::kategorien[0].skal_max;
        z.uebungsmodus = core::modus::training;
        z.abfolge = abfolge;
        wertung.vorbereiten();
        begin();
    }
    void begin() {
        run.emplace(z, rnd, wertung, engine::exercises[0]);
        run->begin({}, [] { return 7; });
    }
    void task() {
        const engine::Task& a = run->draw();
        run->answerOpen(0);
        if (++tasks % 3 == 0) run->score(engine::namedAnswer(a, (a.skala_nr + 1) % 7), 1);
        run->score(engine::namedAnswer(a, a.skala_nr), 1);
        if (run->ended()) begin();
    }

    core::Zustand z;
    base::Rnd rnd{7};
    results::Wertung wertung{z};
    std::optional<engine::Run> run;
    int tasks = 0;
};

/// Draws after a history of tasks.
void drawAfter(benchmark::State& state) {
    Training training;
    for (int i = 0; i < state.range(0); ++i) training.task();
    for ([[maybe_unused]] const auto _ : state) benchmark::DoNotOptimize(&training.run->draw());
}
BENCHMARK(drawAfter)->Name("draw/after_tasks")->Arg(0)->Arg(10)->Arg(1000)->Arg(100000);

/// A task of a bare run: drawn, answered, booked, weighed, and the pool made anew.
void bareTask(benchmark::State& state) {
    Training training;
    for ([[maybe_unused]] const auto _ : state) training.task();
    state.SetItemsProcessed(training.tasks);
}
BENCHMARK(bareTask)->Name("draw/and_weigh");

/// The order of a melody.
void drawMelody(benchmark::State& state) {
    Training training(1);
    for ([[maybe_unused]] const auto _ : state) benchmark::DoNotOptimize(&training.run->draw());
}
BENCHMARK(drawMelody)->Name("draw/melody");

}  // namespace
