#pragma once
#include "engine/task_pool.h"
#include "engine/tonality.h"

namespace engine {

/// Decides what the next task is: scale, direction, key, octave, notes and their order.
class TaskChoice {
  public:
    TaskChoice(const core::Zustand& zustand, base::Rnd& rnd, TaskPool& pool, Tonality tonality)
        : z(zustand),
          rnd_(rnd),
          pool_(pool),
          tonalities_(zustand, rnd, tonality),
          tonality_(tonality) {}

    /// Tables, range and key of a run, and its number of scale codes.
    /// @throws run-time error 5 for a run that could draw only one and the same task.
    void beginRun();
    /// The next task: never the scale of the task before on the same first note.
    const Task& draw();
    /// The task in hand.
    const Task& task() const { return a; }
    Attempt& attempt() { return a.attempt; }

  private:
    Task a;
    const core::Zustand& z;
    base::Rnd& rnd_;
    TaskPool& pool_;
    TonalityChoice tonalities_;
    Tonality tonality_;
    i16 matIndex_;  ///< row of the bag drawn last
};

/// Number of different scales, in either direction, that a run may draw.
int differentScales(const core::Zustand& z);

}  // namespace engine
