#pragma once
#include "base/rnd.h"
#include "core/zustand.h"
#include "engine/aufgabe.h"
#include "engine/matbox.h"
#include "engine/toene.h"

namespace engine {

/// Decides what the next task is: scale, direction, key, octave, notes and their order. It knows no
/// form, no sound and no time.
class Aufgabenwahl {
  public:
    Aufgabenwahl(core::Zustand& zustand, base::Rnd& rnd, Matbox& matbox, Tonart& tonart,
                 Aufgabe& aufgabe)
        : z(zustand), rnd_(rnd), matbox_(matbox), tonart_(tonart), a(aufgabe) {}

    /// Tables, range and key of a run, and its number of scale codes.
    /// @throws run-time error 5 for a run that could draw only one and the same task.
    void LaufBeginn();
    /// Draws the next task: never the scale of the task before on the same first note.
    /// @param floodPercent where a training stands, 0..100.
    void Ziehen(int floodPercent);

    /// Number of different scales, in either direction, that the run may draw.
    int verschiedeneSkalen() const;

  private:
    core::Zustand& z;
    base::Rnd& rnd_;
    Matbox& matbox_;
    Tonart& tonart_;
    Aufgabe& a;
};

}  // namespace engine
