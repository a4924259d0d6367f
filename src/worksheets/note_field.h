#pragma once
#include "staff/keyboard_entry.h"
#include "staff/note_entry.h"
#include "staff/palette.h"
#include "worksheets/answer_field.h"
#include "worksheets/staff_view.h"

#include <memory>

namespace worksheets {

/// A scale is written: its notes stand on the staff as letters between the true first and last one,
/// and the learner puts accidentals on them. Where nothing sounds the scale is named beside it.
class NoteField final : public AnswerField {
  public:
    explicit NoteField(const FieldPlace& at);

    void prepare() override;
    void show(const engine::Task& a) override;
    void open() override;
    void close() override;
    void scored() override;
    bool key(form::Key key) override;

    staff::Staff& staff() { return view_.staff; }
    /// MIDI numbers of what was handed in last, in the order of the columns.
    const base::FixedArray<i16, 9>& ownVersion() const { return ownVersion_; }

  private:
    void cmdOK_click();
    /// The learner hands in what stands on the staff.
    void skal_antw();
    void loadHint();
    void LoesungZeigen(const engine::Task& a);
    std::string inWords() const;

    base::FixedArray<i16, 9> ownVersion_;

    StaffView view_;
    staff::Palette palette_;
    staff::NoteEntry entry_;
    staff::KeyboardEntry keyboard_;
    form::Button cmdOK;
    /// What to do, in rich text; gone after the first closed task.
    form::TextBox HinweisMeldung;
    /// The scale that is to be written, where it does not sound, and its heading.
    std::unique_ptr<form::Label> Label2, aufg;
};

}  // namespace worksheets
