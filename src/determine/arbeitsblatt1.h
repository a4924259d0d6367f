#pragma once
#include "determine/bestimmen_blatt.h"
#include "engine/klang_vorfuehrung.h"

namespace determine {

/// Ear training: a scale is played and the learner names it.
class Arbeitsblatt1 final : public BestimmenBlatt {
  public:
    Arbeitsblatt1(core::Programm& programm, sound::Midi& midi, results::Wertung& wertung);

  protected:
    engine::Vorfuehrung& vorfuehrung() override { return klang_; }
    i16 zeitFaktor() const override { return 20; }

  private:
    engine::KlangVorfuehrung klang_;
};

}  // namespace determine
