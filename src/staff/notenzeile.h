#pragma once
#include "base/array.h"
#include "form/controls.h"
#include "staff/blatt.h"
#include "staff/grenzen.h"
#include "staff/spalte.h"

#include <array>
#include <optional>

namespace staff {

/// The staff of a worksheet: a treble and a bass surface in their holder, of which one is seen, and
/// the notes of a task in its columns. Lives as long as the form.
class Notenzeile {
  public:
    explicit Notenzeile(form::Form& form);

    /// Chooses the staff of a task: bass when its last note in scale order is below 67.
    void SchluesselWahl(i16 letzterTon) { setzeSchluessel(letzterTon < 67 ? 1 : 0); }
    /// Shows the staff s. @param s 0 treble, 1 bass.
    void setzeSchluessel(i16 s);
    i16 SchlZ() const { return SchlZ_; }

    /// Clean lines for a task: sizes, limits, clef, numbers of the columns.
    /// @param tonAnz notes of the task, 4..9. @param signatur key signature, -7 flats .. 7 sharps,
    /// which is drawn after the clef in place of signs before the notes.
    void NotenzeileAufbauen(i16 tonAnz, const Umfang& umfang,
                            std::optional<i16> signatur = std::nullopt);
    void GrenzLinienMalen();
    /// Draws a piece of the limit lines around x in a colour.
    void GrenzStueckMalen(i16 x, i16 farbe);

    /// Puts a note into a column and draws it. @param farbe of its head.
    void NoteSetzen(i16 c, const Ton& ton, i16 farbe);
    /// Draws the note of a column again in a colour.
    void NoteSetzen(i16 c, i16 farbe) { NoteSetzen(c, NotSelb(c).ton(), farbe); }
    /// Gives the note of a column an accidental, on the line where it stands, without drawing it.
    /// @param oktave 1: it sounds an octave higher than it stands, under "8va".
    void NoteAblegen(i16 c, i16 s, i16 y, i16 vz, i16 oktave);
    /// Wipes a column on both staves and draws the note that is written in it.
    void NoteMalen(i16 c);
    /// Draws or takes away "8va" above a column.
    void OktavMarke(i16 c);
    /// Writes the steps between the notes below them, in whole tones.
    void SchritteMalen();
    /// How the note of a column agrees with an earlier one of its staff: -1 the same note stands
    /// there, 1 another one on its line, 0 neither. The nearest decides.
    i16 NotenVergleich(i16 c) const;

    /// @throws run-time error 9 outside 0..8.
    const Spalte& NotSelb(i16 c) const { return NotSelb_[c]; }
    const Umfang& umfang() const { return umfang_; }
    /// @throws run-time error 9 for a staff other than 0 and 1.
    const Grenze& grenze(i16 s) const { return grenzen_[s]; }
    const Spaltenlage& lage() const { return lage_; }
    i16 tonAnz() const { return tonAnz_; }

    /// A note was drawn in this column.
    form::Signal<int> gemalt;

    Blatt PicBNot;
    form::ControlArray<Blatt> PicB;

  private:
    void NotenlinienMalen(i16 s);
    void SpaltenZiffern();
    void SignaturMalen(i16 signatur);
    void eintragen(i16 c, i16 s, const Ton& ton, i16 SchrittY, i16 farbe);

    i16 SchlZ_;
    i16 tonAnz_ = 8;
    bool mitSignatur_ = false;
    Umfang umfang_{};
    Spaltenlage lage_;
    base::FixedArray<Spalte, Spaltenlage::spalten> NotSelb_;
    base::FixedArray<Grenze, 2> grenzen_;
};

}  // namespace staff
