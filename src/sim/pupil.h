#pragma once
#include "form/controls.h"
#include "form/message_loop.h"
#include "sim/learner.h"
#include "worksheets/worksheet.h"

#include <vector>

namespace sim {

/// The learner before the forms: it clicks what a user would click, in its own time.
class Pupil {
  public:
    /// Milliseconds between the end of a task and the click that goes on.
    static constexpr int pause = 500;

    Pupil(form::MessageLoop& loop, const Learner& learner, std::int64_t seed)
        : learner_(learner), chance_(seed), loop_(loop) {}

    /// Sits down before a worksheet. @param limit tasks after which it leaves.
    void begin(worksheets::Worksheet& sheet, int limit);
    /// Hears of a turn of the run.
    void notice(worksheets::Worksheet::Turn turn);
    /// Lays the pen down: nothing that it had in mind is done any more.
    void rest() { hand_ = {}; }
    /// The result form has come: presses its button as soon as it can be seen.
    /// @param read called before that.
    void readResult(form::Form& result, std::function<void()> read);

    /// Tasks begun.
    int tasks() const { return tasks_; }
    /// Tasks answered right at once.
    int rightFirst() const { return rightFirst_; }
    /// It has left since the limit was reached.
    bool leftAtLimit() const { return leftAtLimit_; }

  private:
    void answer();
    void name();
    void write();
    void goOn();
    /// What it does next, in some milliseconds, in place of what it had in mind.
    void in(int milliseconds, std::function<void()> act) {
        hand_ = loop_.after(milliseconds, std::move(act));
    }

    const Learner& learner_;
    base::Rnd chance_;
    form::MessageLoop& loop_;
    form::Connection hand_;
    worksheets::Worksheet* sheet_ = nullptr;
    std::vector<form::Picture*> pictures_;
    std::vector<form::Panel*> names_;
    form::Button* next_ = nullptr;
    form::Panel* back_ = nullptr;
    int limit_ = 0;
    int tasks_ = 0, tries_ = 0, rightFirst_ = 0;
    bool leftAtLimit_ = false;
};

}  // namespace sim
