#include "staff/note_entry.h"

#include "base/rounding.h"
#include "staff/glyphs.h"
#include "staff/ink.h"

namespace staff {

NoteEntry::NoteEntry(Staff& staff) : staff_(staff) {
    for (const int s : {0, 1}) {
        Canvas& canvas = staff_.PicB(s);
        const auto fromPalette = [](const Drag& drag) {
            return drag.source.name() == source::control;
        };
        canvas.onDrop = [this, s, fromPalette](const Drag& drag) {
            if (fromPalette(drag)) DragDrop(s, drag.source.index(), drag.x, drag.y);
        };
        canvas.onDragOver = [this, s, fromPalette](const Drag& drag, DragPhase phase) {
            if (fromPalette(drag)) DragOver(s, drag.source.index(), drag.x, drag.y, phase);
        };
        canvas.refuses = [this, s, fromPalette](const Drag& drag) {
            return !fromPalette(drag) || wouldRefuse(s, drag.source.index(), drag.x, drag.y);
        };
    }
}

bool NoteEntry::DragDrop(i16 s, i16 index, float X, float Y) {
    if (X < static_cast<float>(staff_.layout().start())) return false;
    const i16 c = staff_.layout().columnAt(X);
    const auto y = target(s, index, c, Y);
    preview(s, c, ink::white);
    if (!y) return false;
    staff_.NoteAblegen(c, s, *y, accidentalFrom(index, c, s), octaveFrom(index, c));
    letzteSpalte_ = 0;
    staff_.NoteMalen(c);
    staff_.OktavMarke(c);
    staff_.GrenzStueckMalen(staff_.layout().x(c), ink::green);
    if (dropped) dropped();
    return true;
}

bool NoteEntry::wouldRefuse(i16 s, i16 index, float X, float Y) const {
    return X < static_cast<float>(staff_.layout().start()) ||
           !target(s, index, staff_.layout().columnAt(X), Y);
}

std::optional<i16> NoteEntry::target(i16 s, i16 index, i16 c, float Y) const {
    if (!spalteFrei(c)) return {};
    const i16 y = (base::roundedI16(static_cast<double>(Y)) + 2) / 4 * 4;
    const i16 oben = staff_.grenze(s).highest(), unten = staff_.grenze(s).lowest();
    const bool onLimit = y == oben || y == unten;
    if (onLimit ? !RandErlaubt(index, c, s, y) : y < oben || y > unten) return {};
    return AblageErlaubt(index, s, c);
}

std::optional<i16> NoteEntry::AblageErlaubt(i16 index, i16 s, i16 c) const {
    const Column& column = staff_.NotSelb(c);
    if (!column.hasNote() || column.clef != s) return {};
    if (index != source::octave && column.accidental == accidentalFrom(index, c, s)) return {};
    return column.y();
}

/// On a limit a note may not leave the range: not above the tonic at the top, not below it at the
/// bottom, counted in fifths.
bool NoteEntry::RandErlaubt(i16 index, i16 c, i16 s, i16 y) const {
    const i16 qz = qzOf(letterAt(y, s), accidentalFrom(index, c, s));
    const i16 z = staff_.range().quintLage + QzMitte;
    return y == staff_.grenze(s).highest() ? qz <= z : qz >= z;
}

i16 NoteEntry::accidentalFrom(i16 index, i16 c, i16 s) const {
    if (index == source::asBefore) return VorzeichenDavor(c, s, staff_.NotSelb(c).y());
    if (index == source::octave) return staff_.NotSelb(c).accidental;
    return source::accidental(index);
}

i16 NoteEntry::octaveFrom(i16 index, i16 c) const {
    const i16 octave = staff_.NotSelb(c).octave;
    if (index == source::octave) return 1 - octave;
    return index < source::count ? int(octave) : 0;
}

i16 NoteEntry::VorzeichenDavor(i16 c, i16 s, i16 y) const {
    for (int j = c - 1; j >= 0; --j) {
        const Column& earlier = staff_.NotSelb(j);
        if (earlier.hasNote() && earlier.y() == y && earlier.clef == s) return earlier.accidental;
    }
    return 0;
}

bool NoteEntry::canPreview(i16 index, i16 s, i16 c) const {
    return spalteFrei(c) && AblageErlaubt(index, s, c).has_value();
}

void NoteEntry::DragOver(i16 s, i16 index, float X, float, DragPhase phase) {
    if (index >= source::octave) return;
    const i16 c = staff_.layout().columnAt(X);
    switch (phase) {
        case DragPhase::Enter:
            if (canPreview(index, s, c)) preview(s, c, ink::grey);
            return;
        case DragPhase::Leave:
            if (letzteSpalte_ > 0) preview(s, letzteSpalte_, ink::white);
            return;
        case DragPhase::Over:
            if (c == letzteSpalte_) return;
            if (canPreview(index, s, letzteSpalte_)) preview(s, letzteSpalte_, ink::white);
            letzteSpalte_ = c;
            if (canPreview(index, s, c)) preview(s, c, ink::grey);
            return;
    }
}

void NoteEntry::preview(i16 s, i16 c, i16 farbe) {
    VorschauMalen(s, staff_.layout().x(c), VorschauArt(s, c), farbe);
}

i16 NoteEntry::VorschauArt(i16 s, i16 c) const {
    const Column& column = staff_.NotSelb(c);
    if (column.clef != s || !column.hasNote()) return 0;
    if (column.SchrittY <= ledgerAbove(s)) return 1;
    return column.SchrittY >= ledgerBelow(s) ? 2 : 0;
}

void NoteEntry::VorschauMalen(i16 s, i16 x, i16 art, i16 farbe) {
    constexpr int highest = 6, lowest = 30;
    const Column& column = staff_.NotSelb(staff_.layout().columnAt(static_cast<float>(x)));
    Canvas& canvas = staff_.PicB(s);
    const auto ledgerLine = [&](int k) {
        canvas.line(x - 6, 4 * k, x + 7, 4 * k, lineColour(farbe));
    };
    for (int k = ledgerAbove(s); k >= highest; k -= 2)
        if (art != 1 || k < column.SchrittY) ledgerLine(k);
    // A wiped line may have cut the head.
    if (column.hasNote() && farbe == ink::white && column.SchrittY <= 15 - 4 * s &&
        column.clef == s)
        NotenkopfMalen(canvas, x, column.y(), column.farbe, s);
    for (int k = ledgerBelow(s); k <= lowest; k += 2)
        if (art != 2 || k > column.SchrittY) ledgerLine(k);
}

}  // namespace staff
