#pragma once
#include "core/formular.h"
#include "setup/auswahl.h"

#include <array>
#include <functional>
#include <string>
#include <vector>

namespace setup {

/// The choice of single scales: all or chosen ones, a list of those on offer and one of those
/// chosen, how many places are taken, and what the choice lacks.
class ScaleChoice {
  public:
    /// @param vorkommen the group of the options. @param einzeln that of the lists.
    ScaleChoice(core::Formular& form, core::Programm& programm, form::Group& vorkommen,
                form::Group& einzeln);

    /// The lists have been shown, or hidden.
    std::function<void(bool shown)> onShown;
    /// The choice has been judged: enough for an exercise, or not.
    std::function<void(bool enough)> onJudged;

    /// Texts of the scales chosen, as many as `einzelAnz` says; none while all occur.
    /// @throws run-time error 9 when the list has fewer.
    std::vector<std::string> chosen() const;
    /// Chooses the scale of this text, unless it is not on offer.
    void choose(const std::string& text);
    /// The same for a signed scale code.
    void choose(int code);
    /// Keeps the codes of those chosen for the run.
    /// @throws run-time error 9 when they are more than `wahlPlaetze`.
    void AuswahlUebernehmen() const;

    void ska_ausw_click();
    void selectionCheck();
    /// @param flag not 0: the directions must be equal in number.
    void writeHint(int flag);

  private:
    void AuswahlOeffnen();
    void AuswahlWiederaufnehmen();
    void AuswahlZeigen();
    void lst_ska_click(form::ListBox& quelle, form::ListBox& ziel);
    void AuswahlStandZeigen();

    Richtungen richtungen() const { return {z.abfolge, z.richtung}; }
    /// Which scales are to be had: category, note order, direction.
    using Skalen = std::array<int, 3>;
    Skalen ZurWahl() const { return {z.skal_typ, z.abfolge, z.richtung}; }

    core::Programm& p;
    core::Zustand& z;
    form::Group& einzeln_;
    Skalen zurWahl_{};  ///< those that the lists were filled with
    form::Connection listeGeaendert_;
    form::Connection auswahlGesperrt_;

    form::ControlArray<form::Option> ska_ausw;
    form::ControlArray<form::Group> kl_rahmen;
    form::ListBox lst_ska0;
    form::ListBox lst_ska1;
    /// The hint, and the headings of the lists.
    form::ControlArray<form::Label> lb10;
    /// How many of the places are taken, or that the choice does not count.
    form::Label wahlStand;
};

}  // namespace setup
