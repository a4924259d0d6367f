#include "sim/bare_runs.h"
#include "sim/simulation.h"
#include "sim/summary.h"
#include "sim/usage_error.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <iostream>
#include <span>
#include <vector>

namespace {

constexpr int faulty = 1;
constexpr int wrongUsage = 2;

std::ofstream fileAt(const std::string& path) {
    std::ofstream file(path, std::ios::binary);
    if (!file) throw sim::UsageError(path + " cannot be written");
    return file;
}

/// All runs, their faults told as they come.
std::vector<sim::Outcome> outcomesOf(int runs, const std::function<sim::Outcome()>& run) {
    std::vector<sim::Outcome> outcomes;
    for (int i = 1; i <= runs; ++i) {
        outcomes.push_back(run());
        const std::string& fault = outcomes.back().fault;
        if (!fault.empty()) std::cerr << "zepha9-sim: run " << i << ": " << fault << '\n';
    }
    return outcomes;
}

int statusOf(std::span<const sim::Outcome> outcomes) {
    const auto met = [](const sim::Outcome& outcome) { return !outcome.fault.empty(); };
    return std::ranges::any_of(outcomes, met) ? faulty : 0;
}

int simulateBare(const sim::Options& options) {
    sim::BareRuns runs(options);
    const auto outcomes = outcomesOf(options.runs, [&] { return runs.run(); });
    std::cout << summary(outcomes);
    return statusOf(outcomes);
}

int simulate(const sim::Options& options) {
    const bool toScreen = options.trace == "-";
    std::ofstream file, record;
    if (!options.trace.empty() && !toScreen) file = fileAt(options.trace);
    if (!options.record.empty()) record = fileAt(options.record);
    std::ostream* const trace = options.trace.empty() ? nullptr : toScreen ? &std::cout : &file;

    sim::Simulation simulation(options, trace);
    const auto outcomes = outcomesOf(options.runs, [&] { return simulation.run(); });
    record << simulation.record();
    (toScreen ? std::cerr : std::cout) << summary(outcomes);
    return statusOf(outcomes);
}

}  // namespace

int main(int argc, char* argv[]) {
    std::ios::sync_with_stdio(false);
    try {
        const sim::Options options = sim::parseOptions(
            std::span<const char* const>(argv + 1, static_cast<std::size_t>(argc - 1)));
        if (!options.help) return options.bare ? simulateBare(options) : simulate(options);
        std::cout << sim::helpText;
        return 0;
    } catch (const sim::UsageError& error) {
        std::cerr << "zepha9-sim: " << error.what() << '\n';
        return wrongUsage;
    } catch (const std::exception& error) {
        std::cerr << "zepha9-sim: " << error.what() << '\n';
        return faulty;
    }
}
