#include "notation/noteneingabe.h"

#include "notation/farbe.h"
#include "notation/pixelbild.h"
#include "sheet.h"
#include "support/recording_surface.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace notation {
namespace {

using support::RecordingSurface;

constexpr int flat = 1, natural = 2, sharp = 3, doubleSharp = 4;

/// F sharp major over the treble staff, its inner notes as letters.
struct Task : Sheet {
    explicit Task(int key = 6, int mode = 0, int base = 60) : Sheet(key, mode, base) {
        NotenZeigen(staff, task);
        entry.abgelegt = [this] { ++taken; };
    }
    int taken = 0;
};

std::string picture(const Blatt& surface) {
    Pixelbild pixels(surface.lage().breite, surface.lage().hoehe);
    surface.zeigen(pixels);
    return pixels.zeichnung({0, 0, surface.lage().breite, surface.lage().hoehe});
}

TEST(Drop, TakesAnAccidentalWhereTheRulesAllow) {
    struct Row {
        const char* name;
        int s, index;
        float x, y;
        bool taken;
    };
    const Task fresh;
    const Grenze limits = fresh.staff.grenze(0);
    const auto high = static_cast<float>(limits.hoechste()),
               low = static_cast<float>(limits.tiefste());
    for (const Row& row :
         {Row{"on the note", 0, sharp, 100, 96, true}, Row{"far above it", 0, sharp, 100, 60, true},
          Row{"far below it", 0, sharp, 100, 118, true},
          Row{"left edge of the column", 0, sharp, 80, 96, true},
          Row{"a hair further left", 0, sharp, 79.9F, 96, false},
          Row{"on the clef", 0, sharp, 10, 96, false}, Row{"column 6", 0, sharp, 319.9F, 96, true},
          Row{"column 7 is closed", 0, flat, 320, 96, false},
          Row{"right of the last column", 0, sharp, 2000, 96, false},
          Row{"the accidental it has", 0, natural, 100, 96, false},
          Row{"the other staff", 1, sharp, 100, 60, false},
          Row{"above the limit", 0, sharp, 100, high - 3, false},
          Row{"on the upper limit, no higher than the tonic", 0, sharp, 100, high, true},
          Row{"on the upper limit, higher", 0, doubleSharp, 100, high, false},
          Row{"on the lower limit, lower", 0, flat, 100, low, false},
          Row{"on the lower limit, no lower than the tonic", 0, sharp, 100, low, true},
          Row{"snaps down to the limit", 0, doubleSharp, 100, low + 1, true},
          Row{"below the limit", 0, sharp, 100, low + 3, false}}) {
        SCOPED_TRACE(row.name);
        Task task;
        const Spalte before = task.staff.NotSelb(1);
        EXPECT_EQ(task.entry.wuerdeAblehnen(row.s, row.index, row.x, row.y), !row.taken);
        EXPECT_EQ(task.entry.DragDrop(row.s, row.index, row.x, row.y), row.taken);
        EXPECT_EQ(task.taken, row.taken ? 1 : 0);
        const int c = task.staff.lage().spalteBei(row.x);
        EXPECT_EQ(task.staff.NotSelb(c).abgelegt, row.taken ? 1 : 0);
        if (row.taken) {
            EXPECT_EQ(task.staff.NotSelb(c).vorzeichen, quelle::vorzeichen(row.index));
        } else {
            EXPECT_EQ(task.staff.NotSelb(1).ton(), before.ton());
        }
    }
}

TEST(Drop, TurnsTheNoteOnItsLine) {
    Task task;
    const int y = task.staff.NotSelb(1).y();  // G4
    ASSERT_TRUE(task.drop(1, doubleSharp));
    EXPECT_EQ(task.staff.NotSelb(1).ton(), (Ton{69, qzVon(4, 2)}));
    EXPECT_EQ(task.staff.NotSelb(1).y(), y);
    EXPECT_EQ(task.staff.NotSelb(1).zeichen, 9);
    ASSERT_TRUE(task.drop(1, natural));
    EXPECT_EQ(task.staff.NotSelb(1).ton(), (Ton{67, qzVon(4, 0)}));
    EXPECT_EQ(task.staff.NotSelb(1).farbe, farbe::schwarz);
    EXPECT_FALSE(task.drop(1, natural));
}

TEST(Drop, TakesTheAccidentalOfAnEarlierNoteOnTheLine) {
    Task task;
    task.staff.NoteSetzen(2, task.staff.NotSelb(1).ton(), farbe::schwarz);
    EXPECT_FALSE(task.drop(2, quelle::wieVorher)) << "neither has one";
    ASSERT_TRUE(task.drop(1, sharp));
    ASSERT_TRUE(task.drop(2, quelle::wieVorher));
    EXPECT_EQ(task.staff.NotSelb(2).ton(), task.staff.NotSelb(1).ton());
    EXPECT_EQ(task.staff.NotSelb(2).zeichen, 10);
}

TEST(Drop, PutsTheOctaveMarkFurtherRightForEachColumn) {
    Task task;
    const Ton high{98, qzVon(1, 0)};  // D7, written as D6
    for (const int c : {1, 3}) {
        task.staff.NoteSetzen(c, high, farbe::schwarz);
        ASSERT_EQ(task.staff.NotSelb(c).oktave, 1);
        ASSERT_TRUE(task.entry.DragDrop(0, sharp, static_cast<float>(task.staff.lage().x(c)), 80));
        EXPECT_EQ(task.staff.NotSelb(c).ton(), (Ton{99, qzVon(1, 1)})) << "still sounds high";
        RecordingSurface surface;
        task.staff.PicB(0).zeigen(surface);
        const int x = 50 * c + 54;
        EXPECT_TRUE(std::ranges::any_of(surface.lines,
                                        [&](const auto& line) {
                                            return line.x1 == x + 1 && line.y1 == 6 &&
                                                   line.colour == base::colours::black;
                                        }))
            << "column " << c;
    }
}

TEST(Preview, ShowsLedgerLinesOfOneColumnAndLeavesNoTrace) {
    for (const auto& [base, key] : {std::pair{60, 6}, {72, -1}, {36, 5}}) {
        SCOPED_TRACE(base);
        Task task(key, 0, base);
        const int s = task.staff.SchlZ();
        const Blatt& surface = task.staff.PicB(s);
        const std::string before = picture(surface);
        const auto over = [&](float x, ZugZustand state = ZugZustand::Ueber) {
            task.entry.DragOver(s, doubleSharp, x, 80, state);
        };
        over(100, ZugZustand::Betreten);
        EXPECT_EQ(task.entry.letzteSpalte(), 0) << "entering alone remembers nothing";
        over(100);
        EXPECT_EQ(task.entry.letzteSpalte(), 1);
        const std::string one = picture(surface);
        EXPECT_NE(one, before);
        over(110);
        EXPECT_EQ(picture(surface), one);
        over(220);
        EXPECT_NE(picture(surface), one);
        over(60);
        EXPECT_EQ(picture(surface), before) << "the first column shows none";
        over(320);
        EXPECT_EQ(picture(surface), before) << "nor does a closed one";
        over(300);
        over(300, ZugZustand::Verlassen);
        EXPECT_EQ(picture(surface), before);
        over(100);
        EXPECT_FALSE(task.entry.DragDrop(s, doubleSharp, 100, 2));
        EXPECT_EQ(picture(surface), before) << "a refused drop takes it away";
    }
}

TEST(Preview, LeavesOutTheLinesThatTheNoteHas) {
    Task task(0, 0, 72);
    struct Row {
        const char* name;
        Ton note;
        int kind;
        std::vector<int> ys;
    };
    for (const Row& row :
         {Row{"inside the staff", {71, qzVon(6, 0)}, 0, {56, 48, 40, 32, 24, 104, 112, 120}},
          Row{"on the first ledger line above",
              {81, qzVon(5, 0)},
              1,
              {48, 40, 32, 24, 104, 112, 120}},
          Row{"C6", {84, qzVon(0, 0)}, 1, {40, 32, 24, 104, 112, 120}},
          Row{"C4", {60, qzVon(0, 0)}, 2, {56, 48, 40, 32, 24, 112, 120}}}) {
        SCOPED_TRACE(row.name);
        task.staff.NoteSetzen(2, row.note, farbe::schwarz);
        EXPECT_EQ(task.entry.VorschauArt(0, 2), row.kind);
        task.entry.DragOver(0, sharp, 140, 80, ZugZustand::Betreten);
        RecordingSurface surface;
        task.staff.PicB(0).zeigen(surface);
        std::vector<int> ys;
        for (const auto& line : surface.lines)
            if (line.colour == linienFarbe(farbe::grau)) ys.push_back(line.y1);
        EXPECT_EQ(ys, row.ys);
    }
}

TEST(Surface, PassesOnOnlyWhatComesFromThePaletteAndOnlyWhileOpen) {
    Task task;
    form::Label other(task.bench.form, {"other", 3});
    Blatt& surface = task.staff.PicB(0);
    const auto drop = [&](const form::Control& source) { surface.ablegen({source, 100, 96}); };
    EXPECT_TRUE(surface.wuerdeAblehnen({other, 100, 96}));
    drop(other);
    EXPECT_EQ(task.taken, 0);
    task.staff.PicBNot.enabled = false;
    EXPECT_TRUE(surface.wuerdeAblehnen({task.palette.NotP(sharp), 100, 96}));
    drop(task.palette.NotP(sharp));
    EXPECT_EQ(task.taken, 0);
    task.palette.PaletteEin();
    drop(task.palette.NotP(sharp));
    EXPECT_EQ(task.taken, 1);
}

TEST(Keys, WriteThroughTheRulesOfADrop) {
    using enum Schreibtaste;
    struct Row {
        const char* name;
        std::vector<Schreibtaste> keys;
        int column, accidental, inHand;
    };
    for (const Row& row :
         {Row{"up", {Hoch}, 1, 1, -1}, Row{"up twice", {Hoch, Hoch}, 1, 2, -1},
          Row{"no further than a double sharp", {Hoch, Hoch, Hoch}, 1, 2, -1},
          Row{"up and down", {Hoch, Tief}, 1, 0, -1},
          Row{"the third column", {Rechts, Rechts, Tief}, 3, -1, -1},
          Row{"no further left than the first", {Links, Hoch}, 1, 1, -1},
          Row{"no further right than the sixth",
              {Rechts, Rechts, Rechts, Rechts, Rechts, Rechts, Rechts, Tief},
              6,
              -1,
              -1},
          Row{"taken in hand alone", {Vier}, 1, 0, 3},
          Row{"taken and dropped once", {Rechts, Fuenf, Ablegen, Rechts, Ablegen}, 3, 0, -1},
          Row{"nothing in hand", {Ablegen}, 1, 0, -1}}) {
        SCOPED_TRACE(row.name);
        Task task;
        for (const Schreibtaste key : row.keys) task.staff.PicBNot.taste(key);
        EXPECT_EQ(task.keys.spalte(), row.column);
        EXPECT_EQ(task.keys.inHand(), row.inHand);
        EXPECT_EQ(task.staff.NotSelb(row.column).vorzeichen, row.accidental);
        EXPECT_EQ(task.staff.PicBNot.marke(), (Rechteck{40 * row.column + 40, 0, 40, 158}));
        for (int i = 0; i < quelle::anzahl; ++i)
            EXPECT_EQ(task.palette.NotP(i).marke() != Rechteck{}, i == row.inHand);
    }
}

TEST(Palette, OpensAndClosesWithItsFrames) {
    Task task;
    const auto state = [&](bool open, const base::Colour& frames) {
        EXPECT_EQ(task.palette.NotP(0).usable(), open);
        for (const form::Group& frame : task.palette.grdnot) EXPECT_EQ(frame.backColour(), frames);
    };
    state(true, base::rgb(128, 255, 128));
    task.palette.PaletteAus();
    state(false, base::colours::red);
    EXPECT_TRUE(task.staff.PicBNot.usable());
    task.palette.PaletteMalen();
    state(false, base::colours::red);
    EXPECT_FALSE(task.staff.PicBNot.usable());
}

}  // namespace
}  // namespace notation
