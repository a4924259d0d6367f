#pragma once
#include "drill/drill.h"
#include "sim/exercise.h"

#include <vector>

namespace sim {

/// The road from the start form over the set-up form to a worksheet, by its controls.
class SetupRoad {
  public:
    SetupRoad(drill::Drill& drill, const engine::Exercise& exercise)
        : p(drill.programm), exercise_(exercise) {}

    /// Makes the choices and opens the worksheet. The first time it begins at the start form, then
    /// at the set-up form to which the run before came back.
    /// @throws UsageError for a choice that the forms do not offer.
    void go(const std::vector<Assignment>& assignments, const core::Zustand& wanted);
    /// Continues the saved training. @throws UsageError when the set-up form offers none.
    void resume();

  private:
    form::Form& shown(const std::string& name);
    form::Form& setUpForm();
    void choose(form::Form& form, const std::string& field, int value);
    void chooseScales(form::Form& form, const core::Zustand& wanted);

    core::Programm& p;
    const engine::Exercise& exercise_;
};

}  // namespace sim
