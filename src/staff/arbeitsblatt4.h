#pragma once
#include "engine/klang_vorfuehrung.h"
#include "staff/schreib_blatt.h"

namespace staff {

/// Ear training: a scale is played and the learner writes it.
class Arbeitsblatt4 final : public SchreibBlatt {
  public:
    Arbeitsblatt4(core::Programm& programm, sound::Midi& midi, results::Wertung& wertung);

  protected:
    engine::Vorfuehrung& vorfuehrung() override { return klang_; }

  private:
    engine::KlangVorfuehrung klang_;
};

}  // namespace staff
