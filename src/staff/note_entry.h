#pragma once
#include "base/array.h"
#include "staff/staff.h"

#include <functional>
#include <optional>

namespace staff {

/// Sources of a drop. Those of the palette: 0 double flat, 1 flat, 2 natural, 3 sharp, 4 double
/// sharp; they leave the octave mark of a note alone. 5 to 9 the same without the mark.
namespace source {
inline constexpr int count = 5;
inline constexpr int asBefore = 10;  ///< the accidental of an earlier note on the line
inline constexpr int octave = 11;    ///< the octave mark comes or goes
inline constexpr const char* control = "NotP";
/// -2..2, of the sources 0 to 9.
constexpr int accidental(int index) { return index % count - 2; }
constexpr int with(int accidental) { return accidental + 2; }
}  // namespace source

/// Writing by dragging accidentals onto columns. A drop turns the note that stands in the column,
/// wherever between the limits the pointer was. Attaches itself to the surfaces of the staff.
/// Positions X and Y are pixels of the surface s.
class NoteEntry {
  public:
    explicit NoteEntry(Staff& staff);

    /// Whether a column takes drops: those between the first and the last note of a written scale.
    static bool spalteFrei(i16 c) { return c >= 1 && c <= 6; }
    i16 letzteSpalte() const { return letzteSpalte_; }
    /// Called after each drop that was taken.
    std::function<void()> dropped;

    /// @return whether the drop was taken. One that is refused only takes the preview away.
    bool DragDrop(i16 s, i16 index, float X, float Y);
    void DragOver(i16 s, i16 index, float X, float Y, DragPhase phase);
    /// Whether a drop here would be refused.
    bool wouldRefuse(i16 s, i16 index, float X, float Y) const;

    /// The ledger lines that the column has of its own: 0 none, 1 above, 2 below the staff.
    i16 VorschauArt(i16 s, i16 c) const;
    /// Draws the ledger lines that the note of the column at x does not need itself.
    /// @param farbe number of a colour; white takes them away.
    void VorschauMalen(i16 s, i16 x, i16 art, i16 farbe);

  private:
    /// The y where a drop lands: that of the note, nothing when the drop is refused.
    std::optional<i16> AblageErlaubt(i16 index, i16 s, i16 c) const;
    bool RandErlaubt(i16 index, i16 c, i16 s, i16 y) const;
    std::optional<i16> target(i16 s, i16 index, i16 c, float Y) const;
    i16 accidentalFrom(i16 index, i16 c, i16 s) const;
    i16 octaveFrom(i16 index, i16 c) const;
    i16 VorzeichenDavor(i16 c, i16 s, i16 y) const;
    void preview(i16 s, i16 c, i16 farbe);
    bool canPreview(i16 index, i16 s, i16 c) const;

    Staff& staff_;
    i16 letzteSpalte_;
};

}  // namespace staff
