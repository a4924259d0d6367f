#pragma once
#include "core/formular.h"
#include "engine/aufgabe.h"
#include "staff/notenzeile.h"

namespace worksheets {

using base::i16;

/// The staff of a worksheet and what a screen reader is told of it.
class Notenbild {
  public:
    Notenbild(core::Formular& form, core::Programm& programm, form::Control& bereich);

    /// Empty lines at the start of a run.
    /// @param signatur the staff is one that shows key signatures.
    void vorbereiten(i16 tonAnz, bool signatur);
    /// Clef and limits of a task. @param signatur its key stands behind the clef.
    void aufbauen(const engine::Aufgabe& a, bool signatur);
    /// The notes that stand there, in words.
    std::string beschreibung() const;

    staff::Notenzeile zeile;

  private:
    core::Formular& form_;
    core::Programm& p;
};

}  // namespace worksheets
