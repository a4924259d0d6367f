#pragma once
#include "engine/matbox.h"
#include "engine/tonart.h"

namespace engine {

/// Decides what the next task is: scale, direction, key, octave, notes and their order.
class Aufgabenwahl {
  public:
    Aufgabenwahl(const core::Zustand& zustand, base::Rnd& rnd, Matbox& matbox, Tonart art)
        : z(zustand), rnd_(rnd), matbox_(matbox), tonart_(zustand, rnd, art), art_(art) {}

    /// Tables, range and key of a run, and its number of scale codes.
    /// @throws run-time error 5 for a run that could draw only one and the same task.
    void LaufBeginn();
    /// The next task: never the scale of the task before on the same first note.
    const Aufgabe& Ziehen();
    /// The task in hand.
    const Aufgabe& aufgabe() const { return a; }
    Verlauf& verlauf() { return a.verlauf; }

  private:
    Aufgabe a;
    const core::Zustand& z;
    base::Rnd& rnd_;
    Matbox& matbox_;
    Tonartwahl tonart_;
    Tonart art_;
    i16 matIndex_;  ///< row of the bag drawn last
};

/// Number of different scales, in either direction, that a run may draw.
int verschiedeneSkalen(const core::Zustand& z);

}  // namespace engine
