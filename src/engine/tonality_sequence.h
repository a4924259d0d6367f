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
class TonalitySequence {
  public:
    /// The key of the next row. @param scale its scale. @param half rows of the first filling.
    /// @return in fifths from C.
    i16 draw(int scale, int half, base::Rnd& rnd);

  private:
    i16 candidate(bool evenOut, base::Rnd& rnd) const;

    int row_ = 0;            ///< rows filled so far, in both fillings
    int accidentalSum_ = 0;  ///< accidentals of their keys
    std::array<std::set<int>, core::katalog::maxSkalen> had_;  ///< keys of each scale
};

}  // namespace engine
