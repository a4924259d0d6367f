#pragma once
#include "core/zustand.h"
#include "results/auswertung.h"

namespace engine {

/// The counters that a learner sees.
struct Counters {
    int right = 0;
    int wrong = 0;
    int repetitions = 0;
};

/// Where a training was left, as the host keeps it: "true", then for the n scale codes of the run
/// the codes, the weights, slot and three scores each, and the counters; 6n + 4 texts in plain
/// decimal.
core::Value::Array writeTraining(const core::Zustand& z, int n,
                                 const results::Auswertung& auswertung, const Counters& counters);

/// Takes a training up again: codes and weights into `mathaeufgk_box`, the scores into the table.
/// @throws run-time errors 5, 6, 9 and 13 for a record that does not fit the run as it was set up;
/// state and table are unchanged then.
Counters readTraining(const core::Value& record, int n, core::Zustand& z,
                      results::Auswertung& auswertung);

}  // namespace engine
