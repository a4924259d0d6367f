#pragma once
#include "engine/run.h"

#include <cstdint>
#include <optional>
#include <string>

namespace sim {

/// How a run came to its end.
enum class Ending {
    Goal,     ///< training: every weight has gone
    Failed,   ///< training: too many weights
    Count,    ///< test or exam: all tasks done
    Clock,    ///< test or exam: the time was over
    Left,     ///< after the number of tasks asked for
    Endless,  ///< given up: it did not come to an end by itself
    Fault     ///< the drill met an error
};
const char* endingName(Ending ending);
/// How a run has ended by itself, if it has; the clock is not known to it.
std::optional<Ending> endingOf(const engine::Run& run);

/// What became of one run.
struct Outcome {
    Ending ending = Ending::Fault;
    int tasks = 0;
    int rightFirst = 0;                        ///< tasks answered right at once
    std::optional<double> meanWeight;          ///< of the scale codes at the end, in training only
    std::optional<int> bar;                    ///< 0..100, in training only
    std::optional<std::int64_t> milliseconds;  ///< simulated, where there was a clock
    std::string total;                         ///< of the result form, "" when it was not shown
    std::string fault;

    /// Takes the weights of a training that has got as far as having them.
    void weigh(const engine::Run& run, const core::Zustand& z);
};

/// Tasks after which a run without a limit is given up.
inline constexpr int endless = 100000;

}  // namespace sim
