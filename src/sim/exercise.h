#pragma once
#include "core/zustand.h"
#include "engine/exercise.h"

#include <span>
#include <string>
#include <vector>

namespace sim {

/// One `--set field=value`.
struct Assignment {
    std::string field, value;
};

/// The exercise of a worksheet. @throws UsageError for a form that is none.
const engine::Exercise& exercise(const std::string& form);

/// A field that can be set: the names of set-up fields are those of the exercise state.
struct Field {
    const char* name;
    core::i16 core::Zustand::*member;
    int least, most;
};
std::span<const Field> fields();

/// The exercise state that a set-up form would hand to a worksheet. What is not set stands as the
/// set-up form opens with it; `FrquMaxAkt` follows from the lowest note and the size of the range.
/// @throws UsageError for an unknown field, a value out of range, or choices that contradict.
core::Zustand exerciseState(const engine::Exercise& exercise,
                            const std::vector<Assignment>& assignments);

}  // namespace sim
