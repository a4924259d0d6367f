#include "staff/keyboard_entry.h"

namespace staff {

KeyboardEntry::KeyboardEntry(Staff& staff, NoteEntry& entry, Palette& palette)
    : staff_(staff), entry_(entry), palette_(palette) {
    staff_.PicBNot.onKey = [this](WritingKey t) { key(t); };
    staff_.PicBNot.takesEnter = [this] { return inHand_ >= 0 && palette_.pbNoten.enabled(); };
}

void KeyboardEntry::beginTask() {
    column_ = 1;
    take(-1);
    showMark();
}

void KeyboardEntry::key(WritingKey key) {
    const int here = source::with(staff_.NotSelb(column_).accidental);
    switch (key) {
        case WritingKey::Left:
            return go(-1);
        case WritingKey::Right:
            return go(1);
        case WritingKey::Up:
            return drop(here + 1);
        case WritingKey::Down:
            return drop(here - 1);
        case WritingKey::Drop:
            drop(inHand_);
            return take(-1);
        case WritingKey::One:
        case WritingKey::Two:
        case WritingKey::Three:
        case WritingKey::Four:
        case WritingKey::Five:
            return take(static_cast<int>(key) - static_cast<int>(WritingKey::One));
    }
}

bool KeyboardEntry::writable(int c) const {
    return NoteEntry::spalteFrei(c) && staff_.NotSelb(c).hasNote();
}

void KeyboardEntry::go(int step) {
    if (!writable(column_ + step)) return;
    column_ += step;
    showMark();
}

void KeyboardEntry::take(int index) {
    inHand_ = index;
    palette_.mark(index);
}

void KeyboardEntry::drop(int index) {
    if (index < 0 || index >= source::count || !palette_.pbNoten.enabled()) return;
    const i16 s = staff_.SchlZ();
    const int y = staff_.grenze(s).nearestBetween(staff_.NotSelb(column_).y());
    entry_.DragDrop(s, static_cast<i16>(index), static_cast<float>(staff_.layout().x(column_)),
                    static_cast<float>(y));
}

void KeyboardEntry::showMark() {
    constexpr int width = ColumnLayout::spacing;
    staff_.PicBNot.mark =
        Rect{staff_.layout().x(column_) - width / 2, 0, width, staff_.PicBNot.bounds().height};
}

}  // namespace staff
