#pragma once
#include "core/formular.h"
#include "setup/groups.h"
#include "setup/saved_choice.h"
#include "setup/sound_panel.h"

namespace setup {

/// The mode of an exercise, with the exam's number: what a mode opens, an exam presets and locks,
/// and a continued training restores and locks.
class ModeChoice {
  public:
    ModeChoice(core::Formular& form, core::Programm& programm, Zweig zweig, const Groups& groups,
               SoundPanel& sound, const SavedChoice& saved);

    /// Offers the modes, trying out first. A training to continue must be there.
    void fill();
    /// What the mode asks for when a run begins.
    void ModusSchritt();

  private:
    void training_Combo_click();
    void prfnr_Comb_click();
    void PruefungVorgeben();
    void TrainingFortsetzen();

    core::Formular& form_;
    core::Programm& p;
    core::Zustand& z;
    Zweig zweig_;
    const Groups& groups_;
    SoundPanel& sound_;
    const SavedChoice& saved_;
    bool bereit_ = false;  ///< the combos are filled: an exam that is chosen presets

    form::Combo training_Combo;
    form::Combo prfnr_Comb;
};

}  // namespace setup
