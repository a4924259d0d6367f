#pragma once
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

/// What became of one run.
struct Outcome {
    Ending ending = Ending::Fault;
    int tasks = 0;
    int rightFirst = 0;                ///< tasks answered right at once
    std::optional<double> meanWeight;  ///< of the scale codes at the end, in training only
    std::optional<int> bar;            ///< 0..100, in training only
    std::int64_t milliseconds = 0;     ///< simulated
    std::string total;                 ///< of the result form, "" when it was not shown
    std::string fault;
};

}  // namespace sim
