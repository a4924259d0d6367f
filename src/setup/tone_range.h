#pragma once
#include "core/formular.h"
#include "setup/regeln.h"

#include <functional>

namespace setup {

/// The range of notes: its size in octaves, and where it lies.
class ToneRange {
  public:
    ToneRange(core::Formular& form, core::Programm& programm, Zweig zweig, form::Group& gruppe);

    /// Another range was chosen.
    std::function<void()> onChosen;

    /// Offers the sizes and chooses the smallest.
    void fill();

  private:
    void CmbOktAnz_click();
    void CmbOktBer_click();

    core::Programm& p;
    core::Zustand& z;
    Zweig zweig_;

    form::Label lb0;
    form::Combo CmbOktAnz;
    form::Combo CmbOktBer;
};

}  // namespace setup
