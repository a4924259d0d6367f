#pragma once
#include "staff/note_entry.h"
#include "staff/palette.h"

namespace staff {

/// Writing by keys: left and right choose a column, up and down turn its accidental by one, 1 to 5
/// take an accidental of the palette in hand and Enter drops it, once. Every change goes through
/// the rules of a drop between the limits. Attaches itself to the holder of the staff.
class KeyboardEntry {
  public:
    KeyboardEntry(Staff& staff, NoteEntry& entry, Palette& palette);

    /// A new task: the first column that takes drops, nothing in hand.
    void beginTask();
    void key(WritingKey key);
    /// The column that the keys write in, 1..6.
    i16 column() const { return column_; }
    /// The accidental in hand, as index of the palette; -1 for none.
    int inHand() const { return inHand_; }

  private:
    bool writable(int c) const;
    void go(int step);
    void take(int index);
    void drop(int index);
    void showMark();

    Staff& staff_;
    NoteEntry& entry_;
    Palette& palette_;
    i16 column_ = 1;
    int inHand_ = -1;
};

}  // namespace staff
