#pragma once
#include "core/formular.h"
#include "engine/task.h"
#include "staff/staff.h"

namespace worksheets {

using base::i16;

/// The staff of a worksheet and what a screen reader is told of it.
class StaffView {
  public:
    StaffView(core::Formular& form, core::Programm& programm, form::Control& area);

    /// Empty lines at the start of a run.
    /// @param keySignature the staff is one that shows key signatures.
    void prepare(i16 tonAnz, bool keySignature);
    /// Clef and limits of a task. @param keySignature its key stands behind the clef.
    void layOut(const engine::Task& a, bool keySignature);
    /// The notes that stand there, in words.
    std::string inWords() const;

    staff::Staff staff;

  private:
    core::Formular& form_;
    core::Programm& p;
};

}  // namespace worksheets
