#pragma once
#include "core/zustand.h"

#include <span>
#include <string>
#include <vector>

namespace sim {

/// One `--set field=value`.
struct Assignment {
    std::string field, value;
};

/// A worksheet and the pair of choices that leads to it.
struct Worksheet {
    const char* name;
    int theoriewahl;
    int ueb_typ;
};
/// @throws UsageError for a form that is no worksheet on which a learner can answer.
const Worksheet& worksheet(const std::string& form);

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
core::Zustand exerciseState(const Worksheet& sheet, const std::vector<Assignment>& assignments);

}  // namespace sim
