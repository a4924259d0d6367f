#pragma once
#include "staff/noteneingabe.h"
#include "staff/palette.h"
#include "staff/tastenschrift.h"
#include "worksheets/antwortfeld.h"
#include "worksheets/notenbild.h"

#include <memory>

namespace worksheets {

/// A scale is written: its notes stand on the staff as letters between the true first and last one,
/// and the learner puts accidentals on them. Where nothing sounds the scale is named beside it.
class NotenFeld final : public Antwortfeld {
  public:
    /// @param verlassen true once the form is being left.
    NotenFeld(core::Formular& form, core::Programm& programm, const engine::Lauf& lauf,
              form::Control& seite, form::Control& bereich, const bool& verlassen);

    void vorbereiten() override;
    void zeigen(const engine::Aufgabe& a) override;
    void oeffnen() override;
    void schliessen() override;
    void gewertet(const engine::Lauf& lauf) override;
    bool key(form::Key key) override;

    staff::Notenzeile& notenzeile() { return bild_.zeile; }
    /// MIDI numbers of what was handed in last, in the order of the columns.
    const base::FixedArray<i16, 9>& eigeneFassung() const { return eigeneFassung_; }

  private:
    void cmdOK_click();
    /// The learner hands in what stands on the staff.
    void skal_antw();
    void HinweisLaden();
    void LoesungZeigen(const engine::Aufgabe& a);
    std::string beschreibung() const;

    core::Formular& form_;
    core::Programm& p;
    core::Zustand& z;
    const engine::Lauf& lauf_;
    const bool& verlassen_;
    base::FixedArray<i16, 9> eigeneFassung_;

    Notenbild bild_;
    staff::Palette palette_;
    staff::Noteneingabe eingabe_;
    staff::Tastenschrift tasten_;
    form::Button cmdOK;
    /// What to do, in rich text; gone after the first closed task.
    form::TextBox HinweisMeldung;
    /// The scale that is to be written, where it does not sound, and its heading.
    std::unique_ptr<form::Label> Label2, aufg;
};

}  // namespace worksheets
