#include "sim/summary.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <numeric>
#include <vector>

namespace sim {

namespace {

std::string row(const char* name, const std::string& value) {
    char text[200];
    std::snprintf(text, sizeof text, "%-18s%s\n", name, value.c_str());
    return text;
}

std::string decimal(double value) {
    char text[40];
    std::snprintf(text, sizeof text, "%.1f", value);
    return text;
}

std::string duration(double milliseconds) {
    const auto s = static_cast<long long>(milliseconds / 1000 + 0.5);
    char text[60];
    std::snprintf(text, sizeof text, "%lld:%02lld:%02lld", s / 3600, s / 60 % 60, s % 60);
    return text;
}

/// The value of one run, or the mean and the bounds of several.
template <class Text>
std::string spread(const std::vector<double>& values, Text text) {
    if (values.size() == 1) return text(values.front());
    const auto [least, most] = std::ranges::minmax(values);
    const double sum = std::accumulate(values.begin(), values.end(), 0.0);
    return text(sum / static_cast<double>(values.size())) + " a run (" + text(least) + " to " +
           text(most) + ")";
}

}  // namespace

std::string summary(std::span<const Outcome> outcomes) {
    std::vector<double> tasks, weights, bars, times;
    std::map<Ending, int> endings;
    double right = 0, all = 0;
    for (const Outcome& outcome : outcomes) {
        tasks.push_back(outcome.tasks);
        if (outcome.milliseconds) times.push_back(static_cast<double>(*outcome.milliseconds));
        if (outcome.meanWeight) weights.push_back(*outcome.meanWeight);
        if (outcome.bar) bars.push_back(*outcome.bar);
        right += outcome.rightFirst;
        all += outcome.tasks;
        ++endings[outcome.ending];
    }
    std::string text = row("runs", std::to_string(outcomes.size()));
    if (outcomes.empty()) return text;
    const auto whole = [](double v) { return std::to_string(static_cast<long long>(v + 0.5)); };
    text += row("tasks", spread(tasks, whole));
    text += row("right at first",
                whole(right) + (all > 0 ? " (" + decimal(right / all * 100) + "%)" : ""));
    if (!weights.empty()) text += row("mean weight", spread(weights, decimal));
    if (!bars.empty()) text += row("bar", spread(bars, whole));
    std::string ends;
    for (const auto& [ending, count] : endings)
        ends += (ends.empty() ? "" : ", ") + std::string(endingName(ending)) +
                (outcomes.size() > 1 ? " " + std::to_string(count) : "");
    text += row("ended by", ends);
    if (outcomes.size() == 1 && !outcomes[0].total.empty())
        text += row("result", outcomes[0].total);
    if (!times.empty()) text += row("simulated time", spread(times, duration));
    return text;
}

}  // namespace sim
