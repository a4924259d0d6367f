#pragma once
#include "engine/lauf.h"
#include "form/form.h"

#include <functional>

namespace worksheets {

/// The part of a worksheet that a learner answers with. It shows what of a task is to be seen,
/// hands answers to `geben`, and is told what has become of them.
class Antwortfeld {
  public:
    virtual ~Antwortfeld() = default;
    /// A run begins: captions, and what it may be answered with. Everything is closed.
    virtual void vorbereiten() = 0;
    /// A task was drawn.
    virtual void zeigen(const engine::Aufgabe& a) = 0;
    /// It may be answered.
    virtual void oeffnen() = 0;
    /// It may not be answered now: it sounds once more, or the form is being left.
    virtual void schliessen() = 0;
    /// The last answer was scored.
    virtual void gewertet(const engine::Lauf& lauf) = 0;
    /// @return whether the key meant something here.
    virtual bool key(form::Key key) = 0;

    /// Takes an answer.
    std::function<void(const engine::Antwort&)> geben;
};

}  // namespace worksheets
