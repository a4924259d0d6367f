#pragma once
#include "base/rnd.h"
#include "core/katalog.h"
#include "engine/exercise.h"
#include "engine/task.h"

namespace engine {

/// Draws the key of a task and makes its tones. A scale that is only heard takes a transposition by
/// 1 to 11 semitones, for the run or for each task, or one final for the modes of a rotating
/// category; one that is spelled takes a key of the circle of fifths.
class TonalityChoice {
  public:
    TonalityChoice(const core::Zustand& zustand, base::Rnd& rnd, Tonality tonality)
        : z(zustand), rnd_(rnd), tonality_(tonality) {}

    /// Scales and range of a run, and the key where it stays.
    void beginRun(Task& a);
    /// The key of the next task, before its scale and direction are known.
    void draw(Task& a);
    /// Position and tones of the scale drawn.
    void makeTones(Task& a);
    /// Drawing again may give the same key for ever. In a written test or exam the keys are those
    /// of the bag: a plain draw keeps the last.
    bool settled() const;
    /// Octaves by which a task may be shifted up.
    int oktSpanne() const { return oktSpanne_; }

    /// Fifths of a degree from the first one of the category's base scale; 0 where a category has
    /// no place on the circle.
    static i16 stufenQz(int skal_typ, int stufe);

  private:
    void soundingTones(Task& a);
    void spelledTones(Task& a);
    i16 drawOctave() { return rnd_.below(oktSpanne_ + 1) * 12; }
    void fillNotes(Task& a, i16 firstNote) const;

    const core::Zustand& z;
    base::Rnd& rnd_;
    Tonality tonality_;
    std::array<core::katalog::Leiter, core::katalog::maxSkalen> patterns_{}, scaleTones_{};
    int oktSpanne_ = 0;
    i16 finalis_;  ///< pitch class of the first note where the final stays
};

/// Accidentals that a written task asks for, at least 1: those of its key, one less when the first
/// note of the scale carries one of its own.
/// @param quintLage key in fifths from C. @param firstFifths fifths of the scale's first note from
/// the key's.
constexpr i16 accidentalCount(i16 quintLage, i16 firstFifths) {
    const int fifths = firstFifths + quintLage;
    const bool natural = fifths > -2 && fifths < 6;
    const i16 size = quintLage < 0 ? -quintLage : quintLage;
    const i16 n = size - (natural ? 0 : 1);
    return n == 0 ? i16(1) : n;
}

}  // namespace engine
