#include "staff/staff.h"

#include "staff/glyphs.h"
#include "staff/ink.h"

#include <algorithm>
#include <string>

namespace staff {

namespace {

constexpr int staffHeight = 144;
constexpr int holderHeight = 158;
/// Top of the treble and the bass surface in their holder.
constexpr std::array staffTop{12, 0};

/// y of the lines that the signs of a key signature stand on, in their order.
using SignLines = std::array<int, 7>;
constexpr std::array sharpLines{SignLines{64, 76, 60, 72, 84, 68, 80},
                                SignLines{56, 68, 52, 64, 76, 60, 72}};
constexpr std::array flatLines{SignLines{80, 68, 84, 72, 88, 76, 92},
                               SignLines{72, 60, 76, 64, 80, 68, 84}};
/// Top of what is written below the notes of a staff.
constexpr int belowNotes = 132;
constexpr int signatureX = 36;
constexpr int signatureStep = 10;

}  // namespace

Staff::Staff(form::Form& form) : PicBNot(form, {"PicBNot"}), PicB(form, "PicB", 2, &PicBNot) {
    PicBNot.backColour = base::colours::grey;
    setClef(clef::treble);
}

void Staff::setClef(i16 s) {
    SchlZ_ = s;
    for (const int i : {0, 1}) PicB(i).visible = i == s;
}

void Staff::NotenzeileAufbauen(i16 tonAnz, const Range& range, std::optional<i16> keySignature) {
    withSignature_ = keySignature.has_value();
    const int vz = keySignature.value_or(0);
    tonAnz_ = tonAnz;
    range_ = range;
    layout_.versatz = signatureStep * std::abs(vz);
    const int width = layout_.width(tonAnz);
    PicBNot.bounds = Rect{0, 0, width, holderHeight};
    for (const int s : {0, 1})
        PicB(s).bounds = Rect{0, staffTop.at(static_cast<std::size_t>(s)), width, staffHeight};
    limits_[SchlZ_] = limitsOn(SchlZ_, range);
    PicBNot.backColour = withSignature_ ? base::colours::white : base::colours::grey;
    PicBNot.clear();
    if (!withSignature_) SpaltenZiffern();  // columns that are written in
    NotenlinienMalen(SchlZ_);
    paintKeySignature(vz);
}

void Staff::SpaltenZiffern() {
    for (int i = 1; i <= 6; ++i)
        for (const int y : {0, holderHeight - 14})
            PicBNot.text(layout_.numberX(i), y, std::to_string(i), base::colours::black);
}

void Staff::NotenlinienMalen(i16 s) {
    Canvas& canvas = PicB(s);
    canvas.clear();
    paintLines(canvas, canvas.bounds().width, topLine(s));
    if (s == clef::treble)
        ViolinschluesselMalen(canvas);
    else
        BassschluesselMalen(canvas);
}

void Staff::paintKeySignature(i16 keySignature) {
    const auto s = static_cast<std::size_t>(int(SchlZ_));
    for (int i = 0; i < std::abs(keySignature); ++i) {
        const i16 x = signatureX + signatureStep * i;
        if (keySignature > 0)
            KreuzMalen(PicB(SchlZ_), x, sharpLines.at(s).at(static_cast<std::size_t>(i)) - 12);
        else
            BeMalen(PicB(SchlZ_), x, flatLines.at(s).at(static_cast<std::size_t>(i)) - 17);
    }
}

void Staff::GrenzLinienMalen() {
    for (const int s : {0, 1}) {
        const Limits& g = limits_[s];
        const int end = PicB(s).bounds().width - ColumnLayout::spacing;
        for (const int y : {g.oben, g.unten})
            PicB(s).line(layout_.start(), y, end, y, lineColour(ink::green), LineStyle::Dotted);
    }
}

void Staff::GrenzStueckMalen(i16 x, i16 farbe) {
    for (const int s : {0, 1}) {
        const Limits& g = limits_[s];
        for (const int y : {g.oben, g.unten})
            PicB(s).line(x - 20, y, x + 20, y, lineColour(farbe), LineStyle::Dotted);
    }
}

void Staff::NoteSetzen(i16 c, const Pitch& pitch, i16 farbe) {
    const Position position = YAusTon(pitch, SchlZ_);
    NotSelb_[c].octave = position.octave;
    enter(c, SchlZ_, pitch, position.y / 4, farbe);
    NoteMalen(c);
}

void Staff::NoteAblegen(i16 c, i16 s, i16 y, i16 vz, i16 octave) {
    NotSelb_[c].octave = octave;
    enter(c, s, TonAusY(y, s, vz, octave), y / 4, ink::black);
    NotSelb_[c].dropped = 1;
}

void Staff::enter(i16 c, i16 s, const Pitch& pitch, i16 SchrittY, i16 farbe) {
    Column& column = NotSelb_[c];
    column.midi = pitch.midi;
    column.qz = pitch.qz;
    column.accidental = accidental(pitch.qz);
    column.clef = s;
    column.SchrittY = SchrittY;
    column.farbe = farbe;
    column.zeichen = NotenVergleich(c) == -1 ? sign::already : sign::of(column.accidental);
    if (withSignature_) column.zeichen = sign::none;
}

void Staff::NoteMalen(i16 c) {
    const Column& column = NotSelb_[c];
    const i16 x = layout_.x(c), y = column.y(), s = column.clef;
    for (const int i : {0, 1}) SpalteLoeschen(PicB(i), topLine(i), x);
    Canvas& canvas = PicB(s);
    NotenkopfMalen(canvas, x, y, column.farbe, s);
    i16 zaehler = 0;
    HilfslinienMalen(canvas, x, y, ledgerAbove(s), ledgerBelow(s), zaehler);
    HalsMalen(canvas, x, y, zaehler, stemTurn(s));
    paintAccidental(canvas, x, y, sign::accidental(column.zeichen));
    painted(c);
}

void Staff::OktavMarke(i16 c) {
    OktavMarkeMalen(PicB(clef::treble), layout_.octaveMarkX(c), 6,
                    NotSelb_[c].octave == 1 ? ink::black : ink::white);
}

void Staff::paintVerdict(i16 c, bool right) {
    Canvas& canvas = PicB(SchlZ_);
    if (right)
        paintTick(canvas, layout_.x(c), belowNotes);
    else
        paintCross(canvas, layout_.x(c), belowNotes);
}

void Staff::paintSteps() {
    for (int c = 0; c + 1 < tonAnz_; ++c) {
        const int halfTones = std::abs(int(NotSelb_[c + 1].midi - NotSelb_[c].midi));
        std::string text = halfTones > 1 ? std::to_string(halfTones / 2) : "";
        if (halfTones % 2 == 1) text += "½";
        const int middle = (layout_.x(c) + layout_.x(c + 1)) / 2;
        PicB(SchlZ_).text(middle - 4, belowNotes, text, lineColour(ink::green));
    }
}

i16 Staff::NotenVergleich(i16 c) const {
    const Column& current = NotSelb_[c];
    for (int j = c - 1; j >= 0; --j) {
        const Column& earlier = NotSelb_[j];
        if (!earlier.hasNote() || earlier.clef != current.clef) continue;
        if (earlier.pitch() == current.pitch()) return -1;
        if (earlier.qz != current.qz && earlier.SchrittY == current.SchrittY) return 1;
    }
    return 0;
}

}  // namespace staff
