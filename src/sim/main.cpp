#include "sim/simulation.h"
#include "sim/summary.h"
#include "sim/usage_error.h"

#include <fstream>
#include <iostream>

namespace {

constexpr int faulty = 1;
constexpr int wrongUsage = 2;

std::ofstream fileAt(const std::string& path) {
    std::ofstream file(path, std::ios::binary);
    if (!file) throw sim::UsageError(path + " cannot be written");
    return file;
}

int simulate(const sim::Options& options) {
    const bool toScreen = options.trace == "-";
    std::ofstream file, record;
    if (!options.trace.empty() && !toScreen) file = fileAt(options.trace);
    if (!options.record.empty()) record = fileAt(options.record);
    std::ostream* const trace = options.trace.empty() ? nullptr : toScreen ? &std::cout : &file;

    sim::Simulation simulation(options, trace);
    std::vector<sim::Outcome> outcomes;
    int status = 0;
    for (int i = 0; i < options.runs; ++i) {
        outcomes.push_back(simulation.run());
        if (outcomes.back().fault.empty()) continue;
        std::cerr << "zepha9-sim: run " << i + 1 << ": " << outcomes.back().fault << '\n';
        status = faulty;
    }
    record << simulation.record();
    (toScreen ? std::cerr : std::cout) << summary(outcomes);
    return status;
}

}  // namespace

int main(int argc, char* argv[]) {
    std::ios::sync_with_stdio(false);
    try {
        const sim::Options options = sim::parseOptions(
            std::span<const char* const>(argv + 1, static_cast<std::size_t>(argc - 1)));
        if (!options.help) return simulate(options);
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
