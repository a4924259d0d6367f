#pragma once
#include "base/array.h"
#include "form/controls.h"
#include "staff/canvas.h"
#include "staff/column.h"
#include "staff/limits.h"

#include <array>
#include <optional>

namespace staff {

/// The staff of a worksheet: a treble and a bass surface in their holder, of which one is seen, and
/// the notes of a task in its columns. Lives as long as the form.
class Staff {
  public:
    explicit Staff(form::Form& form);

    /// Chooses the staff of a task: bass when its last note in scale order is below 67.
    void SchluesselWahl(i16 letzterTon) { setClef(letzterTon < 67 ? 1 : 0); }
    /// Shows the staff s. @param s 0 treble, 1 bass.
    void setClef(i16 s);
    i16 SchlZ() const { return SchlZ_; }

    /// Clean lines for a task: sizes, limits, clef, numbers of the columns.
    /// @param tonAnz notes of the task, 4..9. @param keySignature -7 flats .. 7 sharps, drawn after
    /// the clef in place of signs before the notes.
    void NotenzeileAufbauen(i16 tonAnz, const Range& range,
                            std::optional<i16> keySignature = std::nullopt);
    void GrenzLinienMalen();
    /// Draws a piece of the limit lines around x in a colour.
    void GrenzStueckMalen(i16 x, i16 farbe);

    /// Puts a note into a column and draws it. @param farbe of its head.
    void NoteSetzen(i16 c, const Pitch& pitch, i16 farbe);
    /// Draws the note of a column again in a colour.
    void NoteSetzen(i16 c, i16 farbe) { NoteSetzen(c, NotSelb(c).pitch(), farbe); }
    /// Gives the note of a column an accidental, on the line where it stands, without drawing it.
    /// @param octave 1: it sounds an octave higher than it stands, under "8va".
    void NoteAblegen(i16 c, i16 s, i16 y, i16 vz, i16 octave);
    /// Wipes a column on both staves and draws the note that is written in it.
    void NoteMalen(i16 c);
    /// Draws or takes away "8va" above a column.
    void OktavMarke(i16 c);
    /// A tick or a cross below the note of a column.
    void paintVerdict(i16 c, bool right);
    /// Writes the steps between the notes below them, in whole tones.
    void paintSteps();
    /// How the note of a column agrees with an earlier one of its staff: -1 the same note stands
    /// there, 1 another one on its line, 0 neither. The nearest decides.
    i16 NotenVergleich(i16 c) const;

    /// @throws run-time error 9 outside 0..8.
    const Column& NotSelb(i16 c) const { return NotSelb_[c]; }
    const Range& range() const { return range_; }
    /// @throws run-time error 9 for a staff other than 0 and 1.
    const Limits& grenze(i16 s) const { return limits_[s]; }
    const ColumnLayout& layout() const { return layout_; }
    i16 tonAnz() const { return tonAnz_; }

    /// A note was drawn in this column.
    form::Signal<int> painted;

    Canvas PicBNot;
    form::ControlArray<Canvas> PicB;

  private:
    void NotenlinienMalen(i16 s);
    void SpaltenZiffern();
    void paintKeySignature(i16 keySignature);
    void enter(i16 c, i16 s, const Pitch& pitch, i16 SchrittY, i16 farbe);

    i16 SchlZ_;
    i16 tonAnz_ = 8;
    bool withSignature_ = false;
    Range range_{};
    ColumnLayout layout_;
    base::FixedArray<Column, ColumnLayout::columns> NotSelb_;
    base::FixedArray<Limits, 2> limits_;
};

}  // namespace staff
