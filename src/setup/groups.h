#pragma once
#include "base/colour.h"
#include "core/formular.h"
#include "setup/regeln.h"

namespace setup {

/// Colours of a group tell its state.
namespace farben {
inline constexpr base::Colour offen = base::rgb(255, 255, 192);
inline constexpr base::Colour gesperrt = base::rgb(255, 192, 192);
inline constexpr base::Colour pruefung = base::rgb(128, 255, 128);
inline constexpr base::Colour modus = base::rgb(192, 255, 192);
inline constexpr base::Colour klang = base::rgb(192, 255, 255);
inline constexpr base::Colour tempoOffen = base::rgb(0, 0, 255);
}  // namespace farben

/// Locks a control and shows it.
void sperren(form::Control& control);

/// Indices of the groups, by what is chosen there.
namespace group {
inline constexpr int range = 0, category = 1, reference = 2, tuning = 3, order = 4, next = 5,
                     key = 7, mode = 8, scales = 9, single = 10, answers = 11, check = 14,
                     sound = 15;
}

/// The coloured groups of the set-up form with their headings.
class Groups {
  public:
    Groups(core::Formular& form, Zweig zweig);

    /// nullptr for one that the branch has not.
    form::Group* find(int index) const;
    /// @throws run-time error 9 for one that the branch has not.
    form::Group& operator()(int index) const { return grdeinst(index); }
    auto begin() const { return grdeinst.begin(); }
    auto end() const { return grdeinst.end(); }

    /// Opens what a mode opens. @param auswahl scales are being picked.
    void GruppenOeffnen(bool auswahl) const;
    /// Locks what a continued training has fixed, which is all that a mode opens.
    void lockForTraining() const;
    void lockForExam() const;
    /// Enables what single scales depend on, or disables it, with the headings.
    void enableForPicking(bool enabled) const;

  private:
    form::ControlArray<form::Group> grdeinst;
    form::ControlArray<form::Label> geinst_lb;
};

}  // namespace setup
