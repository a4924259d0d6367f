#pragma once
#include "core/formular.h"
#include "setup/saved_choice.h"

namespace setup {

/// One press fills the set-up form, by the handlers that a user's clicks run: with the choices of
/// this user's last run of the exercise, which the host keeps, or with a beginner's.
class Presets {
  public:
    /// @param actions holds the two buttons.
    Presets(core::Formular& form, core::Programm& programm, ScaleChoice& scales,
            const SavedChoice& saved, form::Group& actions);

    /// Offers what there is. Nothing where a file of settings prescribes the choices.
    void offer();
    /// Keeps the choices of a run that begins.
    void keep() const;

  private:
    std::string record() const;
    void chooseLast() const;
    void chooseForBeginners() const;

    const form::Form& form_;
    core::Programm& p;
    core::Zustand& z;
    ScaleChoice& scales_;
    const SavedChoice& saved_;

    form::Button asLastTime;
    form::Button forBeginners;
};

}  // namespace setup
