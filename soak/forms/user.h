#pragma once
#include "forms/watch.h"
#include "forms/world.h"
#include "sim/pupil.h"

#include <memory>
#include <vector>

namespace soak {

/// A user who does anything that can be done, whenever it can be done: also while something is
/// waited for, played or dragged. Now and then one who knows the subject takes over a worksheet.
class User {
  public:
    User(drill::Drill& drill, form::VirtualTime& loop, Answers& answers, Watch& watch,
         base::Rnd& chance, Tally& tally);

    /// From now on everything is left, one form after the other.
    void leave() { leaving_ = true; }
    int done() const { return done_; }
    /// Actions since everything is left.
    int left() const { return left_; }

  private:
    void plan();
    void act();
    form::Form* before();
    void use(form::Form& form);
    void control(form::Form& form, form::Control& control);
    void drag(worksheets::Worksheet& sheet);
    void writeByKey(worksheets::Worksheet& sheet);
    void key(form::Form& form);
    void close(form::Form& form);
    void seat(worksheets::Worksheet& sheet);
    void turn(worksheets::Worksheet::Turn turn);
    void standUp();

    drill::Drill& drill_;
    form::VirtualTime& loop_;
    Answers& answers_;
    Watch& watch_;
    base::Rnd& chance_;
    Tally& tally_;
    form::Connection hand_;
    int boxesBelow_ = 0;  ///< that were open when the result form came over them
    int depth_ = 0;       ///< actions inside each other: one within what another waits for
    int done_ = 0, left_ = 0;
    bool leaving_ = false;
    std::string impatient_;  ///< the form that is closed once more

    worksheets::Worksheet* sheet_ = nullptr;
    /// Who has the worksheet now, and all that had one: they may be in the middle of a click.
    sim::Pupil* pupil_ = nullptr;
    std::vector<std::unique_ptr<sim::Learner>> learners_;
    std::vector<std::unique_ptr<sim::Pupil>> pupils_;
    form::Connection made_, gone_, turns_;
};

}  // namespace soak
