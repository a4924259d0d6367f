#pragma once
#include "worksheets/answer_field.h"
#include "worksheets/staff_view.h"

#include <array>
#include <memory>

namespace worksheets {

/// A scale is named: up to ten answers, as pictures or as names. Where nothing sounds it stands on
/// a staff above them.
class NameField final : public AnswerField {
  public:
    explicit NameField(const FieldPlace& at);

    void prepare() override;
    void show(const engine::Task& a) override;
    void open() override;
    void close() override;
    void scored() override;
    bool key(form::Key key) override;

    /// nullptr where the task sounds.
    staff::Staff* staff() { return view_ ? &view_->staff : nullptr; }

  private:
    static constexpr int maxAnswers = core::katalog::maxSkalen;

    /// The learner names a scale.
    void skal_antw(int Index);
    void open(int i, bool open);
    void closeAll();
    /// The sign of an answer, until the next task.
    void judge(int i, form::Verdict verdict);
    /// Digit key, name, and what became of it.
    std::string inWords(int i) const;

    std::array<bool, maxAnswers> gesperrt_{};

    form::Label tonarten;
    form::ControlArray<form::Panel> tonart, skal_pan;
    form::ControlArray<form::Picture> ton_art;
    form::ControlArray<form::Label> skal_bez;
    /// The digit key of each answer.
    form::ControlArray<form::Label> ziffer;
    std::unique_ptr<StaffView> view_;
    /// Marks the steps of a closed task, whole tones and half tones.
    std::unique_ptr<form::Button> schrittmarken;
};

}  // namespace worksheets
