#pragma once
#include "engine/run.h"
#include "form/form.h"

#include <functional>

namespace worksheets {

/// The part of a worksheet that a learner answers with. It shows what of a task is to be seen,
/// hands answers to `give`, and is told what has become of them.
class AnswerField {
  public:
    virtual ~AnswerField() = default;
    /// A run begins: captions, and what it may be answered with. Everything is closed.
    virtual void prepare() = 0;
    /// A task was drawn.
    virtual void show(const engine::Task& a) = 0;
    /// It may be answered.
    virtual void open() = 0;
    /// It may not be answered now: it sounds once more, or the form is being left.
    virtual void close() = 0;
    /// The last answer was scored.
    virtual void scored(const engine::Run& run) = 0;
    /// @return whether the key meant something here.
    virtual bool key(form::Key key) = 0;

    /// Takes an answer.
    std::function<void(const engine::Answer&)> give;
};

}  // namespace worksheets
