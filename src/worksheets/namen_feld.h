#pragma once
#include "worksheets/antwortfeld.h"
#include "worksheets/notenbild.h"

#include <array>
#include <memory>

namespace worksheets {

/// A scale is named: up to ten answers, as pictures or as names. Where nothing sounds it stands on
/// a staff above them.
class NamenFeld final : public Antwortfeld {
  public:
    /// @param verlassen true once the form is being left.
    NamenFeld(core::Formular& form, core::Programm& programm, const engine::Lauf& lauf,
              form::Control& seite, form::Control& bereich, const bool& verlassen);

    void vorbereiten() override;
    void zeigen(const engine::Aufgabe& a) override;
    void oeffnen() override;
    void schliessen() override;
    void gewertet(const engine::Lauf& lauf) override;
    bool key(form::Key key) override;

    /// nullptr where the task sounds.
    staff::Notenzeile* notenzeile() { return bild_ ? &bild_->zeile : nullptr; }

  private:
    static constexpr int maxAntworten = core::katalog::maxSkalen;

    /// The learner names a scale.
    void skal_antw(int Index);
    /// Whether the run offers that answer.
    bool gewaehlt(int Index) const;
    void oeffnen(int i, bool offen);
    void alleSchliessen();

    core::Formular& form_;
    core::Programm& p;
    core::Zustand& z;
    const engine::Lauf& lauf_;
    const bool& verlassen_;
    std::array<bool, maxAntworten> gesperrt_{};

    form::Label tonarten;
    form::ControlArray<form::Panel> tonart, skal_pan;
    form::ControlArray<form::Picture> ton_art;
    form::ControlArray<form::Label> skal_bez;
    /// The digit key of each answer.
    form::ControlArray<form::Label> ziffer;
    std::unique_ptr<Notenbild> bild_;
    /// Marks the steps of a closed task, whole tones and half tones.
    std::unique_ptr<form::Button> schrittmarken;
};

}  // namespace worksheets
