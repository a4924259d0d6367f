#pragma once
#include "engine/aufgabe.h"

namespace engine {

/// Who writes down what happens in a run. It exists so that a run can be recorded, and repeated by
/// the million without.
class Protokoll {
  public:
    virtual ~Protokoll() = default;
    /// A task was drawn.
    virtual void aufgabe(const Aufgabe& a) = 0;
    /// It was answered; its points are those before.
    virtual void antwort(const Aufgabe& a, const Antwort& antwort) = 0;
    /// The answer was wrong and the task stays open. @param nr of the answer to come.
    virtual void weitererVersuch(i16 nr) = 0;
};

}  // namespace engine
