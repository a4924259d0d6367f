#pragma once
#include "base/i16.h"
#include "base/rnd.h"
#include "core/katalog.h"

#include <array>
#include <set>

namespace engine {

using base::i16;

/// The keys of a written test or exam: one for each row of its bag. The first half is drawn freely,
/// the second evens out how difficult the first was; no scale comes twice in a key while there are
/// others.
class Tonartspalte {
  public:
    /// The key of the next row. @param skala its scale. @param haelfte rows of the first filling.
    /// @return in fifths from C.
    i16 Ziehen(int skala, int haelfte, base::Rnd& rnd);

  private:
    i16 kandidat(bool ausgleichen, base::Rnd& rnd) const;

    int reihe_ = 0;         ///< rows filled so far, in both fillings
    int schwereSumme_ = 0;  ///< accidentals of their keys
    std::array<std::set<int>, core::katalog::maxSkalen> gehabt_;  ///< keys of each scale
};

}  // namespace engine
