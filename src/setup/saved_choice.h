#pragma once
#include "core/programm.h"
#include "setup/regeln.h"
#include "setup/scale_choice.h"

namespace setup {

/// The choices that a saved training keeps: a list of texts, from which they are chosen again.
class SavedChoice {
  public:
    SavedChoice(const form::Form& form, core::Programm& programm, ScaleChoice& scales, Zweig zweig)
        : form_(form), p(programm), z(programm.zustand), scales_(scales), zweig_(zweig) {}

    /// Asks the host whether there is a training to continue: always for the branch of ear
    /// training.
    bool FortsetzungVorhanden() const;
    core::Value::Array WahlMerken() const;
    /// Step by step: what was chosen stays when a value comes that the form has not.
    /// @throws run-time errors 6, 9 and 13 for that value.
    void WahlWiederherstellen(const core::Value& satz) const;

  private:
    void SkalenWiederherstellen(const core::Value& satz) const;

    const form::Form& form_;
    core::Programm& p;
    core::Zustand& z;
    ScaleChoice& scales_;
    Zweig zweig_;
};

}  // namespace setup
