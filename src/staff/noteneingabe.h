#pragma once
#include "base/array.h"
#include "staff/notenzeile.h"

#include <functional>
#include <optional>

namespace staff {

/// Sources of a drop. Those of the palette: 0 double flat, 1 flat, 2 natural, 3 sharp, 4 double
/// sharp; they leave the octave mark of a note alone. 5 to 9 the same without the mark.
namespace quelle {
inline constexpr int anzahl = 5;
inline constexpr int wieVorher = 10;  ///< the accidental of an earlier note on the line
inline constexpr int oktave = 11;     ///< the octave mark comes or goes
inline constexpr const char* feld = "NotP";
/// -2..2, of the sources 0 to 9.
constexpr int vorzeichen(int index) { return index % anzahl - 2; }
constexpr int mit(int vorzeichen) { return vorzeichen + 2; }
}  // namespace quelle

/// Writing by dragging accidentals onto columns. A drop turns the note that stands in the column,
/// wherever between the limits the pointer was. Attaches itself to the surfaces of the staff.
/// Positions X and Y are pixels of the surface s.
class Noteneingabe {
  public:
    explicit Noteneingabe(Notenzeile& zeile);

    /// A new task: columns 1 to 6 take drops, the others never do.
    void AufgabeBeginnt();
    bool spalteFrei(i16 c) const { return spalteFrei_[c]; }
    i16 letzteSpalte() const { return letzteSpalte_; }
    /// Called after each drop that was taken.
    std::function<void()> abgelegt;

    /// @return whether the drop was taken. One that is refused only takes the preview away.
    bool DragDrop(i16 s, i16 index, float X, float Y);
    void DragOver(i16 s, i16 index, float X, float Y, ZugZustand zustand);
    /// Whether a drop here would be refused.
    bool wuerdeAblehnen(i16 s, i16 index, float X, float Y) const;

    /// The ledger lines that the column has of its own: 0 none, 1 above, 2 below the staff.
    i16 VorschauArt(i16 s, i16 c) const;
    /// Draws the ledger lines that the note of the column at x does not need itself.
    /// @param farbe number of a colour; white takes them away.
    void VorschauMalen(i16 s, i16 x, i16 art, i16 farbe);

  private:
    /// The y where a drop lands: that of the note, nothing when the drop is refused.
    std::optional<i16> AblageErlaubt(i16 index, i16 s, i16 c) const;
    bool RandErlaubt(i16 index, i16 c, i16 s, i16 y) const;
    std::optional<i16> ziel(i16 s, i16 index, i16 c, float Y) const;
    i16 vorzeichenDer(i16 index, i16 c, i16 s) const;
    i16 oktaveDer(i16 index, i16 c) const;
    i16 VorzeichenDavor(i16 c, i16 s, i16 y) const;
    void Vorschau(i16 s, i16 c, i16 farbe);
    bool vorschauMoeglich(i16 index, i16 s, i16 c) const;

    Notenzeile& zeile_;
    base::FixedArray<bool, Spaltenlage::spalten> spalteFrei_;
    i16 letzteSpalte_;
};

}  // namespace staff
