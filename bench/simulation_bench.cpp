#include "sim/bare_runs.h"
#include "sim/simulation.h"

#include <benchmark/benchmark.h>

#include <stdexcept>

namespace {

/// @tparam Runs what makes the runs: `Simulation` or `BareRuns`.
template <class Runs>
void runAll(benchmark::State& state, const std::vector<const char*>& arguments) {
    const sim::Options options = sim::parseOptions(arguments);
    Runs simulation(options);
    std::int64_t tasks = 0;
    for ([[maybe_unused]] const auto _ : state) {
        const sim::Outcome outcome = simulation.run();
        if (!outcome.fault.empty()) throw std::runtime_error(outcome.fault);
        tasks += outcome.tasks;
    }
    state.SetItemsProcessed(tasks);
}
constexpr auto simulate = runAll<sim::Simulation>;
constexpr auto simulateBare = runAll<sim::BareRuns>;
BENCHMARK_CAPTURE(simulate, long_run, {"--tasks", "20000", "--learner", "random:0.7"})
    ->Name("tasks/one_long_run")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(simulate, training, {"--set", "uebungsmodus=1", "--learner", "random:0.7"})
    ->Name("tasks/trainings")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(simulate, exam,
                  {"--set", "uebungsmodus=4", "--set", "abfrage=1", "--learner", "random:0.7"})
    ->Name("tasks/exams")
    ->Unit(benchmark::kMillisecond);

BENCHMARK_CAPTURE(simulate, write_heard,
                  {"--form", "arbeitsblatt4", "--tasks", "5000", "--learner", "random:0.7"})
    ->Name("tasks/write_heard")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(simulate, write_named,
                  {"--form", "arbeitsblatt4b", "--tasks", "5000", "--learner", "random:0.7"})
    ->Name("tasks/write_named")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(simulate, write_training,
                  {"--form", "arbeitsblatt4", "--set", "uebungsmodus=1", "--learner", "random:0.7"})
    ->Name("tasks/write_trainings")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(simulate, theory,
                  {"--form", "arbeitsblatt1b", "--tasks", "5000", "--learner", "random:0.7"})
    ->Name("tasks/identify_seen")
    ->Unit(benchmark::kMillisecond);

BENCHMARK_CAPTURE(simulateBare, bare_trainings,
                  {"--bare", "--set", "uebungsmodus=1", "--learner", "random:0.7"})
    ->Name("tasks/bare_trainings")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(simulateBare, bare_writing,
                  {"--bare", "--form", "arbeitsblatt4", "--set", "uebungsmodus=1", "--learner",
                   "random:0.7"})
    ->Name("tasks/bare_write_trainings")
    ->Unit(benchmark::kMillisecond);

constexpr int lessons = 10000;

/// Saving of a record, file included.
void saveRecord(benchmark::State& state) {
    const std::array arguments{"--tasks", "1"};
    const sim::Options options = sim::parseOptions(arguments);
    sim::Simulation simulation(options);
    results::Skalaxml& record = simulation.drill().xml;
    for ([[maybe_unused]] const auto _ : state) {
        state.PauseTiming();
        record.SkalaXmlNeu();
        for (int i = 0; i < lessons; ++i) {
            record.LektionNeu("dorisch");
            record.AntwortNeu(record.lektion(), 1);
            const auto answer = record.AntwortSchluss(20, 0);
            record.AntwortEigenschaft(answer, "Antwort", "true");
            record.AntwortEigenschaft(answer, "Skala", "dorisch");
        }
        state.ResumeTiming();
        record.SkalaXmlSichern({"2", "Tempo", "60"});
    }
}
BENCHMARK(saveRecord)->Name("record/save_10000_lessons")->Unit(benchmark::kMillisecond);

}  // namespace
