#pragma once
#include "base/array.h"
#include "core/fifths.h"

#include <cmath>

namespace engine {

using base::i16;

/// The time that an answer took, without what was spent on listening again. Clock readings in
/// seconds.
class AnswerTime {
  public:
    /// The learner may answer.
    void start(float clock) { AntwDauStart_ = clock; }
    /// The task is heard once more: what was thought until now counts.
    void pause(float clock) { AntwDau_ += clock - AntwDauStart_; }
    /// The next answer of the same task.
    void startOver(float clock) { AntwDau_ = 0, AntwDauStart_ = clock; }
    /// Tenths of a second up to now, a half rounded up.
    float tenths(float clock) const {
        return std::floor((clock - AntwDauStart_ + AntwDau_) * 10 + 0.5F);
    }

  private:
    float AntwDauStart_ = 0;  ///< when the answer time began
    float AntwDau_ = 0;       ///< what it had come to before
};

/// How far the learner has got with a task.
struct Attempt {
    i16 wrongAnswers;      ///< so far
    float punkte = 0;      ///< 2 for each wrong answer; `rightAtOnce` marks a right first one
    i16 whlgAnz;           ///< repetitions of the task
    i16 whlg_anz;          ///< repetitions since the last answer
    i16 antwort_nr = 1;    ///< running number of the answer
    AnswerTime zeit;       ///< of the answer to come
    float zeit_malus = 0;  ///< score correction for time
    base::FixedArray<i16, 10> FalschSkala;  ///< signed codes of the wrong answers, from 1
};

/// One task: what is asked, and how the learner gets on with it.
struct Task {
    i16 skala_nr;                         ///< scale of the category
    i16 akt_richtung = 1;                 ///< +1 ascending, -1 descending
    i16 tonAnz;                           ///< notes that it has
    bool melodic = false;                 ///< they come in the order of `ton_abfolg`
    i16 oktLage;                          ///< base note, MIDI number
    i16 transp;                           ///< transposition, semitones
    i16 transpLage;                       ///< the same on the staff: lower where that lies high
    i16 quintLage;                        ///< key of a spelled task, in fifths from C
    base::FixedArray<i16, 9> noten;       ///< MIDI numbers in scale order, always rising
    base::FixedArray<i16, 9> notenQz;     ///< their fifths numbers where the task is spelled
    base::FixedArray<i16, 9> stimmWert;   ///< tuning correction of each note, in bend steps
    base::FixedArray<i16, 9> ton_abfolg;  ///< melodic order: indices into noten
    Attempt attempt;

    /// Signed scale code.
    i16 code() const { return (skala_nr + 1) * akt_richtung; }
    /// Index in scale order of the note that comes at a place of the task, 0 to tonAnz - 1.
    int index(int place) const {
        if (melodic) return ton_abfolg[place];
        return akt_richtung == 1 ? place : int(tonAnz) - 1 - place;
    }
    /// A note in scale order, spelled.
    core::Pitch pitch(int k) const { return {noten[k], notenQz[k]}; }
    /// The note at a place of the task.
    core::Pitch pitchAt(int place) const { return pitch(index(place)); }
    /// How a note in scale order stands on the staff of a written task at first: the first and the
    /// last as they are, the others as letters.
    core::Pitch shown(int k) const {
        return k == 0 || k == tonAnz - 1 ? pitch(k) : core::withoutAccidental(pitch(k));
    }
};

/// An answer as the learner gave it.
struct Answer {
    int index = 0;  ///< scale that was named; wrong columns of a written answer
    bool right = false;
    float dauer = 0;   ///< answer time, tenths of a second
    i16 whlg_anz = 0;  ///< repetitions before it
};

/// The answer that names a scale.
inline Answer namedAnswer(const Task& a, int skala_nr) {
    return {skala_nr, skala_nr == a.skala_nr};
}

/// The answer that is written: right when each note between the first and the last is the one
/// asked for, in sound and in spelling. @param written the note at a place of the task.
template <class Noten>
Answer writtenAnswer(const Task& a, Noten written) {
    int wrong = 0;
    for (int place = 1; place <= a.tonAnz - 2; ++place)
        if (written(place) != a.pitchAt(place)) ++wrong;
    return {wrong, wrong == 0};
}

}  // namespace engine
