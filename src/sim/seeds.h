#pragma once
#include "base/rnd.h"

#include <functional>

namespace sim {

/// The seeds of runs, one after the other, so that the tasks of a run do not hang on the length of
/// the run before.
inline std::function<std::int64_t()> seeds(std::int64_t seed) {
    return [chance = base::Rnd(seed)]() mutable {
        constexpr int half = 1 << 24;
        return std::int64_t{chance.below(half)} * half + chance.below(half);
    };
}

/// The seed of the learner's own chance, so that the same tasks can be given to different ones.
inline std::int64_t learnersSeed(std::int64_t seed) { return ~seed; }

}  // namespace sim
