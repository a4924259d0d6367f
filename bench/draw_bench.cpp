#include "core/katalog.h"
#include "engine/aufgabenwahl.h"

#include <benchmark/benchmark.h>

namespace {

/// A training over all church modes in both directions, without forms.
struct Training {
    Training() {
        auswertung.init_arr(20.0F, 6.0F);
        z.skal_anz = core::katalog::kategorien[0].skal_max;
        z.uebungsmodus = core::modus::training;
        wahl.LaufBeginn();
        matbox.TrainingBeginnen();
    }

    /// Draws a task and moves its weight, so that the weights stay about where they began.
    void task() {
        wahl.Ziehen(bar());
        const int start = z.potSkala * z.wiederholung;
        matbox.gewichten((z.skala_nr + 1) * z.akt_richtung, z.matbox_zahl > start ? -4 : 2);
        matbox.MatNeu();
    }
    int bar() const { return 100 * z.matbox_zahl / matbox.obergrenze(); }

    core::Zustand z;
    results::Auswertung auswertung;
    base::Rnd rnd{7};
    engine::Aufgabe aufgabe;
    engine::KlingendeTonart tonart{z, rnd, aufgabe};
    engine::Matbox matbox{z, auswertung, rnd};
    engine::Aufgabenwahl wahl{z, rnd, matbox, tonart, aufgabe};
};

/// Draws after a history of tasks.
void drawAfter(benchmark::State& state) {
    Training training;
    for (int i = 0; i < state.range(0); ++i) training.task();
    const int bar = training.bar();
    for ([[maybe_unused]] const auto _ : state) {
        training.wahl.Ziehen(bar);
        benchmark::DoNotOptimize(training.z.skala_nr);
    }
}
BENCHMARK(drawAfter)->Name("draw/after_tasks")->Arg(0)->Arg(10)->Arg(1000)->Arg(100000);

/// Draw, weight and rebuilding of the pool.
void drawAndWeigh(benchmark::State& state) {
    Training training;
    for ([[maybe_unused]] const auto _ : state) training.task();
}
BENCHMARK(drawAndWeigh)->Name("draw/and_weigh");

/// The order of a melody.
void drawMelody(benchmark::State& state) {
    Training training;
    training.z.abfolge = 1;
    for ([[maybe_unused]] const auto _ : state) training.wahl.Ziehen(50);
}
BENCHMARK(drawMelody)->Name("draw/melody");

}  // namespace
