#pragma once
#include "base/rnd.h"
#include "sim/writer.h"

#include <span>
#include <string>

namespace sim {

/// What a learner has before it: the answers that can be given now, and what is right.
struct Question {
    int right = 0;  ///< scale of the task
    int tries = 0;  ///< answers given to the task so far
    std::span<const int> open;
};

/// A learner of a certain kind: which answer it gives, and after how long.
class Learner {
  public:
    /// Thinking time of those that have none of their own, milliseconds.
    static constexpr int usualTime = 1000;

    /// @param text perfect, wrong, random:P (right with chance P), confuse:A:B (takes scale A for B
    /// and B for A at first), slow:SECONDS (right, but late) or enharmonic (writes what sounds
    /// alike).
    /// @throws UsageError for any other text.
    explicit Learner(const std::string& text = "perfect");

    /// Milliseconds from the opening of the answers to the click.
    int thinkingTime() const { return time_; }
    /// One of the open answers; `question.open` is not empty.
    int answer(const Question& question, base::Rnd& chance) const;
    /// How it writes the scale of a task. `question.open` is not looked at.
    Writing writes(const Question& question, base::Rnd& chance) const;

  private:
    enum class Kind { Perfect, Wrong, Random, Confuse, Slow, Enharmonic };

    static int wrongAnswer(const Question& question, base::Rnd& chance);
    int confused(const Question& question) const;

    Kind kind_ = Kind::Perfect;
    int time_ = usualTime;
    float chanceOfRight_ = 1;
    int a_ = 0, b_ = 0;
};

}  // namespace sim
