#pragma once
#include "support/desk.h"

#include <string>

namespace soak {

/// The drill with its set-up form open, as a user has it who has just started it.
struct Practice : support::Practice {
    /// @param exercise the end of a record's key: 1 naming, 4 writing, with a b in music theory.
    Practice(rehearsal::MemoryHost& host, const std::string& exercise);

    /// What is chosen is something that the form offers.
    void expectInRange() const;
    /// Presses OK, tries two tasks of the run that has begun, and leaves it.
    /// @param keep the training is to be saved. @return whether one had begun and was closed once
    bool run(bool keep);

  private:
    void await();
    void answer(bool right);

    bool writes_;
    base::Rnd chance_{3};
};

}  // namespace soak
