#pragma once
#include "determine/bestimmen_blatt.h"
#include "engine/stille_vorfuehrung.h"
#include "staff/notenzeile.h"

namespace determine {

/// Music theory: a scale stands on the staff, in a key with its signature, and the learner names
/// it.
class Arbeitsblatt1b final : public BestimmenBlatt {
  public:
    Arbeitsblatt1b(core::Programm& programm, sound::Midi& midi, results::Wertung& wertung);

    staff::Notenzeile& notenzeile() { return zeile_; }

  protected:
    engine::Vorfuehrung& vorfuehrung() override { return vorfuehrung_; }
    void AntwortenVorbereiten() override;
    void AufgabeZeigen() override;
    i16 zeitFaktor() const override { return 35; }

  private:
    std::string beschreibung();

    engine::StilleVorfuehrung vorfuehrung_{*this};
    staff::Notenzeile zeile_{*this};
    form::Connection geschlossen_;
    /// Marks the steps of a closed task, whole tones and half tones.
    form::Button schrittmarken{*this, {"schrittmarken", form::Place::noIndex, &PicArb1}};
};

}  // namespace determine
