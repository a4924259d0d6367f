#pragma once
#include "engine/arbeitsblatt.h"
#include "staff/kreistonart.h"
#include "staff/noteneingabe.h"
#include "staff/notenzeile.h"
#include "staff/palette.h"
#include "staff/tastenschrift.h"
#include "staff/tonartspalte.h"
#include "staff/urteil.h"

namespace staff {

/// A worksheet on which a scale is written: its notes stand on the staff as letters between the
/// true first and last one, and the learner puts accidentals on them.
class SchreibBlatt : public engine::Arbeitsblatt {
  public:
    SchreibBlatt(core::Programm& programm, sound::Midi& midi, results::Wertung& wertung,
                 std::string name);

    bool key(form::Key key) override;
    void AntwortenSchliessen() override;
    /// The learner hands in what stands on the staff.
    void skal_antw();

    Notenzeile& notenzeile() { return zeile_; }
    const Erwartung& erwartung() const { return erwartung_; }

  protected:
    void AntwortenVorbereiten() override;
    void AntwortenOeffnen() override;
    void AntwortenZuruecksetzen() override { AntwortenSchliessen(); }
    void AntwortSperren(const Antwort&) override {}
    void FalscheAntwortMerken(const Antwort&) override {}
    void AntwortVermerken(pugi::xml_node node, const Antwort& antwort) override;
    void VersuchVermerken(pugi::xml_node node) override;
    void AufgabeZeigen() override;
    std::string Loesung(bool richtig) const override;
    void LoesungZeigen() override;
    i16 zeitFaktor() const override { return 35; }
    i16 zeitFaktorDerAufgabe() const override;
    i16 erlaubt() const override { return 4; }

    /// The notes that were handed in last, in the order of the columns.
    const base::FixedArray<i16, 9>& eigeneFassung() const { return eigeneFassung_; }

  private:
    void cmdOK_click();
    void HinweisLaden();
    std::string beschreibung();
    i16 ersterTon() const { return KreisTonart::stufenQz(z.skal_typ, z.skala_nr); }

    Notenzeile zeile_;
    Palette palette_;
    Noteneingabe eingabe_;
    Tastenschrift tasten_;
    Tonartspalte tonarten_;
    Erwartung erwartung_;
    base::FixedArray<i16, 9> eigeneFassung_;
    form::Connection geschlossen_;

  protected:
    form::Button cmdOK{*this, {"cmdOK", form::Place::noIndex, &PicArb2}};
    /// What to do, in rich text; gone after the first closed task.
    form::TextBox HinweisMeldung{
        *this, {"HinweisMeldung", form::Place::noIndex, &PicArb2}, form::TextBox::Size::Rich};
};

}  // namespace staff
