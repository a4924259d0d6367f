#pragma once
#include "drill/drill.h"
#include "form/virtual_time.h"
#include "forms/tally.h"
#include "results/testergebnis.h"
#include "worksheets/worksheet.h"

#include <cstdint>
#include <vector>

namespace soak {

/// Looks on, and holds what is to be seen against what has happened.
class Watch {
  public:
    /// @param records whether the records of runs can be written.
    Watch(drill::Drill& drill, const form::VirtualTime& loop, Tally& tally, bool records);

    /// What holds whenever the user can do something.
    void look();
    /// What holds while no handler is running.
    void lookClosely();
    /// An error was told: what this run has left need not be whole.
    void excuse() { excused_ = true; }
    /// The last form has gone.
    bool ended() const { return ended_; }
    /// The worksheet that is loaded, nullptr for none.
    worksheets::Worksheet* sheet() const { return sheet_; }

  private:
    using Turn = worksheets::Worksheet::Turn;

    void made(form::Form& form);
    void gone(form::Form& form);
    void turn(Turn turn);
    void result(const results::Testergebnis& form);
    void record();

    drill::Drill& drill_;
    core::Zustand& z = drill_.programm.zustand;
    const form::VirtualTime& loop_;
    Tally& tally_;
    bool records_;
    bool ended_ = false;
    bool excused_ = false;
    int results_ = 0;        ///< result forms of the run
    std::int64_t seen_ = 0;  ///< when a form was last to be seen
    worksheets::Worksheet* sheet_ = nullptr;
    bool ready_ = false;         ///< the run of the worksheet has begun
    int right_ = 0, wrong_ = 0;  ///< answers, as the counters must show them
    int tasks_ = 0, closed_ = 0, answers_ = 0, clocks_ = 0;
    int seconds_ = 0;  ///< of an exam, at its start
    form::Connection made_, gone_, empty_, turns_;
};

}  // namespace soak
