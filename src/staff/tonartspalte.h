#pragma once
#include "base/rnd.h"
#include "core/zustand.h"

#include <array>
#include <set>

namespace staff {

using base::i16;

/// The keys of a written test or exam: one for each row of its bag. The first half is drawn freely,
/// the second evens out how difficult the first was; no scale comes twice in a key while there are
/// others.
class Tonartspalte {
  public:
    Tonartspalte(core::Zustand& zustand, base::Rnd& rnd) : z(zustand), rnd_(rnd) {}

    /// Draws the key of a row into column 1 of the bag. @param haelfte rows of the first filling.
    void fuellen(int zeile, int haelfte);

  private:
    i16 ziehen(bool ausgleichen) const;

    core::Zustand& z;
    base::Rnd& rnd_;
    int reihe_ = 0;                         ///< rows filled so far, in both fillings
    int schwereSumme_ = 0;                  ///< accidentals of their keys
    std::array<std::set<int>, 10> gehabt_;  ///< keys of each scale
};

}  // namespace staff
