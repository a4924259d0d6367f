#pragma once
#include "core/formular.h"
#include "engine/run.h"

#include <functional>

namespace worksheets {

/// Where an answer field stands.
struct FieldPlace {
    core::Formular& form;
    core::Programm& programm;
    const engine::Run& run;
    form::Control& side;  ///< beside the answers
    form::Control& area;  ///< of the answers
    const bool& leaving;  ///< true once the form is being left
};

/// The part of a worksheet that a learner answers with. It shows what of a task is to be seen,
/// hands answers to `give`, and is told what has become of them.
class AnswerField {
  public:
    explicit AnswerField(const FieldPlace& at)
        : form_(at.form),
          p(at.programm),
          z(at.programm.zustand),
          run_(at.run),
          leaving_(at.leaving) {}
    AnswerField(const AnswerField&) = delete;
    AnswerField& operator=(const AnswerField&) = delete;
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
    virtual void scored() = 0;
    /// @return whether the key meant something here.
    virtual bool key(form::Key key) = 0;

    /// Takes an answer.
    std::function<void(const engine::Answer&)> give;

  protected:
    core::Formular& form_;
    core::Programm& p;
    core::Zustand& z;
    const engine::Run& run_;
    const bool& leaving_;
};

}  // namespace worksheets
