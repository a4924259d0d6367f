#pragma once
#include "engine/stille_vorfuehrung.h"
#include "staff/schreib_blatt.h"

namespace staff {

/// Music theory: a scale is named and the learner writes it.
class Arbeitsblatt4b final : public SchreibBlatt {
  public:
    Arbeitsblatt4b(core::Programm& programm, sound::Midi& midi, results::Wertung& wertung);

  protected:
    engine::Vorfuehrung& vorfuehrung() override { return vorfuehrung_; }
    void AntwortenVorbereiten() override;
    void AufgabeZeigen() override;

  private:
    engine::StilleVorfuehrung vorfuehrung_{*this};
    form::Label Label2{*this, {"Label2", form::Place::noIndex, &PicArb1}};
    form::Label aufg{*this, {"aufg", form::Place::noIndex, &PicArb1}};
};

}  // namespace staff
