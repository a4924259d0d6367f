#pragma once
#include "sim/exercise.h"
#include "sim/learner.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace sim {

/// What the command line asks for.
struct Options {
    std::string form = "arbeitsblatt1";
    std::vector<Assignment> assignments;
    int tasks = 0;  ///< after which a run is left; 0: it ends by itself
    int runs = 1;
    std::int64_t seed = 1;
    Learner learner;
    std::string trace;   ///< file, "-" for standard output, "" for none
    std::string record;  ///< file, "" for none
    std::string words;   ///< file of a language, "" for words that tell their number
    bool throughSetup = false;
    bool bare = false;  ///< without forms, sound, clock and record
    bool keep = false;  ///< a training that is left is saved, and the next run continues it
    bool help = false;
};

extern const char* const helpText;

/// The exercise state that the options describe. @throws UsageError for fields, values
/// and choices that do not go, and for a run that would never end.
core::Zustand exerciseState(const Options& options);

/// @throws UsageError for what it does not know.
Options parseOptions(std::span<const char* const> arguments);

}  // namespace sim
