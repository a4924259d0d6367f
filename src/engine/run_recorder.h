#pragma once
#include "engine/task.h"

namespace engine {

/// Who writes down what happens in a run. It exists so that a run can be recorded, and repeated by
/// the million without.
class RunRecorder {
  public:
    virtual ~RunRecorder() = default;
    /// A task was drawn.
    virtual void task(const Task& a) = 0;
    /// It was answered; its points are those before.
    virtual void answer(const Task& a, const Answer& answer) = 0;
    /// The answer was wrong and the task stays open. @param nr of the answer to come.
    virtual void anotherTry(i16 nr) = 0;
};

}  // namespace engine
