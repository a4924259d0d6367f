#pragma once
#include "engine/arbeitsblatt.h"
#include "engine/vorfuehrung.h"

namespace engine {

/// A task that stands on the form and does not sound: it may be answered at once.
class StilleVorfuehrung final : public Vorfuehrung {
  public:
    explicit StilleVorfuehrung(Arbeitsblatt& blatt) : blatt_(blatt) {}
    void Vorfuehren() override { blatt_.AntwortZulassen(); }

  private:
    Arbeitsblatt& blatt_;
};

}  // namespace engine
