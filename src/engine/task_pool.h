#pragma once
#include "base/rnd.h"
#include "core/zustand.h"
#include "engine/task.h"
#include "engine/tonality_sequence.h"
#include "results/wertung.h"

namespace engine {

/// The task pool of a run. In training it holds each scale as many times as its weight, heaviest
/// first; in tests and exams it is a bag from which drawn entries are removed.
class TaskPool {
  public:
    /// @param withTonality each row of a bag has a key.
    TaskPool(core::Zustand& zustand, results::Wertung& wertung, base::Rnd& rnd, bool withTonality)
        : z(zustand), wertung_(wertung), rnd_(rnd), withTonality_(withTonality) {}

    /// Counts the scale codes of the run.
    void countCodes();
    /// Start weight of each scale code: the fewer scales, the more often each stands in the pool.
    static i16 startWeight(i16 n) { return n * 4 < 30 ? 30 / n : i16(4); }

    /// A new training: equal weights, a full pool.
    void beginTraining();
    /// A training taken up again: the pool as the weights in `mathaeufgk_box` want it.
    void resumeTraining();
    /// The bag of a test or exam: every code once, the rest at random. @param rows its size.
    void beginExam(int rows);
    /// Fills the bag anew.
    void MatFuellen();
    /// Sorts the weights, sums the positive ones and rebuilds the pool from them.
    void MatNeu();
    /// Adds to the weight of a code; a code that is not in the run is passed over.
    void addWeight(i16 code, i16 more);
    /// Where a training stands after its weights have changed: between the goal, no weight left,
    /// and twice the weight that it began with.
    enum class TrainingState { GoesOn, GoalReached, Failed };
    TrainingState update();

    /// Draws scale and direction of a task.
    /// @param nutzeBox from the pool; otherwise plainly over all that the run may draw.
    /// @return row of the pool, 0 after a plain draw.
    i16 draw(bool nutzeBox, Task& a);
    /// Takes the first entry with that code out of the bag.
    void takeOut(i16 drawn);
    /// Key of a row of the bag, in fifths from C.
    i16 tonality(int row) const { return matbox_(row, poolTonality); }

    /// Signed scale code of a row of the pool, 1..matboxanz; 0 when it is used up.
    i16 code(int row) const { return matbox_(row, poolCode); }
    /// Rows of the pool.
    i16 matboxanz() const { return matboxanz_; }
    /// Number of different scale codes of the run.
    i16 potSkala() const { return potSkala_; }
    /// Sum of the positive weights, and where it makes a training fail.
    i16 matbox_zahl() const { return matbox_zahl_; }
    i16 obergrenze() const { return wiederholung_ * potSkala_ * 2; }
    /// What the bar of a training shows, 0..100: 50 at the start, 0 is the goal.
    int percent() const;

  private:
    /// Columns of the pool.
    static constexpr int poolCode = 0, poolTonality = 1;

    i16 newCode(int i) const;
    i16 fillCode(int row) const;
    i16 freeCode();
    i16 trainingRow();
    void markPresent();
    void MatAusBox(i16 versatz);

    core::Zustand& z;
    results::Wertung& wertung_;
    base::Rnd& rnd_;
    bool withTonality_;
    TonalitySequence tonalities_;
    base::Table<i16> matbox_;  ///< rows 1..matboxanz: signed code, key
    i16 matboxanz_;
    i16 potSkala_;
    i16 matbox_zahl_;
    i16 wiederholung_ = 4;  ///< start weight of each scale code
};

}  // namespace engine
