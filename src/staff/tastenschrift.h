#pragma once
#include "staff/noteneingabe.h"
#include "staff/palette.h"

namespace staff {

/// Writing by keys: left and right choose a column, up and down turn its accidental by one, 1 to 5
/// take an accidental of the palette in hand and Enter drops it, once. Every change goes through
/// the rules of a drop between the limits. Attaches itself to the holder of the staff.
class Tastenschrift {
  public:
    Tastenschrift(Notenzeile& zeile, Noteneingabe& eingabe, Palette& palette);

    /// A new task: the first column that takes drops, nothing in hand.
    void AufgabeBeginnt();
    void taste(Schreibtaste taste);
    /// The column that the keys write in, 1..6.
    i16 spalte() const { return spalte_; }
    /// The accidental in hand, as index of the palette; -1 for none.
    int inHand() const { return inHand_; }

  private:
    bool beschreibbar(int c) const;
    void gehen(int schritt);
    void nehmen(int index);
    void ablegen(int index);
    void markieren();

    Notenzeile& zeile_;
    Noteneingabe& eingabe_;
    Palette& palette_;
    i16 spalte_ = 1;
    int inHand_ = -1;
};

}  // namespace staff
