#pragma once
#include "base/array.h"
#include "core/fifths.h"

#include <cmath>

namespace engine {

using base::i16;

/// The time that an answer took, without what was spent on listening again. Clock readings in
/// seconds.
class Antwortzeit {
  public:
    /// The learner may answer.
    void laeuft(float uhr) { AntwDauStart_ = uhr; }
    /// The task is heard once more: what was thought until now counts.
    void ruht(float uhr) { AntwDau_ += uhr - AntwDauStart_; }
    /// The next answer of the same task.
    void vonVorn(float uhr) { AntwDau_ = 0, AntwDauStart_ = uhr; }
    /// Tenths of a second up to now, a half rounded up.
    float zehntel(float uhr) const {
        return std::floor((uhr - AntwDauStart_ + AntwDau_) * 10 + 0.5F);
    }

  private:
    float AntwDauStart_ = 0;  ///< when the answer time began
    float AntwDau_ = 0;       ///< what it had come to before
};

/// How far the learner has got with a task.
struct Verlauf {
    i16 fehler;  ///< wrong answers
    float punkte =
        0;         ///< error points, 2 for each of them; `gutschrift` marks a right first answer
    i16 whlgAnz;   ///< repetitions of the task
    i16 whlg_anz;  ///< repetitions since the last answer
    i16 antwort_nr = 1;                     ///< running number of the answer
    Antwortzeit zeit;                       ///< of the answer to come
    float zeit_malus = 0;                   ///< score correction for time
    base::FixedArray<i16, 10> FalschSkala;  ///< signed codes of the wrong answers, from 1
};

/// One task: what is asked, and how the learner gets on with it.
struct Aufgabe {
    i16 skala_nr;                         ///< scale of the category
    i16 akt_richtung = 1;                 ///< +1 ascending, -1 descending
    i16 tonAnz;                           ///< notes that it has
    bool melodie = false;                 ///< they come in the order of `ton_abfolg`
    i16 oktLage;                          ///< base note, MIDI number
    i16 transp;                           ///< transposition, semitones
    i16 transpLage;                       ///< the same on the staff: lower where that lies high
    i16 quintLage;                        ///< key of a spelled task, in fifths from C
    base::FixedArray<i16, 9> noten;       ///< MIDI numbers in scale order, always rising
    base::FixedArray<i16, 9> notenQz;     ///< their fifths numbers where the task is spelled
    base::FixedArray<i16, 9> stimmWert;   ///< tuning correction of each note, in bend steps
    base::FixedArray<i16, 9> ton_abfolg;  ///< melodic order: indices into noten
    Verlauf verlauf;

    /// Signed scale code.
    i16 code() const { return (skala_nr + 1) * akt_richtung; }
    /// Index in scale order of the note that comes at a place of the task, 0 to tonAnz - 1.
    int index(int stelle) const {
        if (melodie) return ton_abfolg[stelle];
        return akt_richtung == 1 ? stelle : int(tonAnz) - 1 - stelle;
    }
    /// A note in scale order, spelled.
    core::Ton ton(int k) const { return {noten[k], notenQz[k]}; }
    /// The note at a place of the task.
    core::Ton tonAn(int stelle) const { return ton(index(stelle)); }
    /// How a note in scale order stands on the staff of a written task at first: the first and the
    /// last as they are, the others as letters.
    core::Ton gezeigt(int k) const {
        return k == 0 || k == tonAnz - 1 ? ton(k) : core::ohneVorzeichen(ton(k));
    }
};

/// An answer as the learner gave it.
struct Antwort {
    int index = 0;  ///< scale that was named; wrong columns of a written answer
    bool richtig = false;
    float dauer = 0;   ///< answer time, tenths of a second
    i16 whlg_anz = 0;  ///< repetitions before it
};

/// The answer that names a scale.
inline Antwort benannt(const Aufgabe& a, int skala_nr) {
    return {skala_nr, skala_nr == a.skala_nr};
}

/// The answer that is written: right when each note between the first and the last is the one
/// asked for, in sound and in spelling. @param geschrieben the note at a place of the task.
template <class Noten>
Antwort geschrieben(const Aufgabe& a, Noten geschrieben) {
    int falsche = 0;
    for (int stelle = 1; stelle <= a.tonAnz - 2; ++stelle)
        if (geschrieben(stelle) != a.tonAn(stelle)) ++falsche;
    return {falsche, falsche == 0};
}

}  // namespace engine
