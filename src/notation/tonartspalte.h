#pragma once
#include "base/rnd.h"
#include "core/zustand.h"

#include <array>
#include <set>

namespace notation {

using base::i16;

/// The keys of a written test or exam: one for each row of its bag. The first half is drawn freely,
/// the second evens out how difficult the first was; no scale comes twice in a key while there are
/// others.
class Tonartspalte {
  public:
    Tonartspalte(core::Zustand& zustand, base::Rnd& rnd) : z(zustand), rnd_(rnd) {}

    /// @param aufgaben of the whole run, in two fillings of the bag.
    void beginnen(i16 aufgaben);
    /// Draws the key of a row into column 1 of the bag.
    void fuellen(int zeile);

  private:
    i16 ziehen(int versuch) const;

    core::Zustand& z;
    base::Rnd& rnd_;
    int haelfte_ = 0;      ///< rows of the first filling
    int reihe_ = 0;        ///< rows filled so far
    int schwereSumme_ = 0; ///< accidentals of their keys
    std::array<std::set<int>, 10> gehabt_;  ///< keys of each scale
};

}  // namespace notation
