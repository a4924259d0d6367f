#include "staff/note_entry.h"

#include "sheet.h"
#include "staff/ink.h"
#include "staff/pixel_grid.h"

#include <gtest/gtest.h>

namespace staff {
namespace {

constexpr int flat = 1, natural = 2, sharp = 3, doubleSharp = 4;

/// F sharp major over the treble staff, its inner notes as letters.
struct Task : Sheet {
    explicit Task(int key = 6, int mode = 0, int base = 60) : Sheet(key, mode, base) {
        showTask();
        entry.dropped = [this] { ++taken; };
    }
    int taken = 0;
};

std::string picture(const Canvas& surface) {
    PixelGrid pixels(surface.bounds().width, surface.bounds().height);
    surface.replay(pixels);
    return pixels.drawing({0, 0, surface.bounds().width, surface.bounds().height});
}

TEST(Drop, TakesAnAccidentalWhereTheRulesAllow) {
    struct Row {
        const char* name;
        int s, index;
        float x, y;
        bool taken;
    };
    const Task fresh;
    const Limits limits = fresh.staff.grenze(0);
    const auto high = static_cast<float>(limits.highest()),
               low = static_cast<float>(limits.lowest());
    for (const Row& row :
         {Row{"far above the note", 0, sharp, 100, 60, true},
          Row{"left edge of the column", 0, sharp, 80, 96, true},
          Row{"a hair further left", 0, sharp, 79.9F, 96, false},
          Row{"column 6", 0, sharp, 319.9F, 96, true},
          Row{"column 7 is closed", 0, flat, 320, 96, false},
          Row{"the accidental it has", 0, natural, 100, 96, false},
          Row{"the other staff", 1, sharp, 100, 60, false},
          Row{"above the limit", 0, sharp, 100, high - 3, false},
          Row{"on the upper limit, no higher than the tonic", 0, sharp, 100, high, true},
          Row{"on the upper limit, higher", 0, doubleSharp, 100, high, false},
          Row{"on the lower limit, lower", 0, flat, 100, low, false},
          Row{"snaps down to the limit", 0, doubleSharp, 100, low + 1, true},
          Row{"below the limit", 0, sharp, 100, low + 3, false}}) {
        SCOPED_TRACE(row.name);
        Task task;
        EXPECT_EQ(task.entry.wouldRefuse(row.s, row.index, row.x, row.y), !row.taken);
        EXPECT_EQ(task.entry.DragDrop(row.s, row.index, row.x, row.y), row.taken);
        EXPECT_EQ(task.taken, row.taken ? 1 : 0);
        const Column& column = task.staff.NotSelb(task.staff.layout().columnAt(row.x));
        EXPECT_EQ(column.dropped, row.taken ? 1 : 0);
        if (row.taken) {
            EXPECT_EQ(column.accidental, source::accidental(row.index));
        }
    }
}

TEST(Drop, TurnsTheNoteOnItsLineOrAsAnEarlierOneOnIt) {
    Task task;
    const Column& first = task.staff.NotSelb(1);
    const int y = first.y();  // G4
    task.staff.NoteSetzen(2, first.pitch(), ink::black);
    EXPECT_FALSE(task.drop(2, source::asBefore)) << "neither has an accidental";
    ASSERT_TRUE(task.drop(1, doubleSharp));
    EXPECT_EQ(first.pitch(), (Pitch{69, qzOf(4, 2)}));
    EXPECT_EQ(first.y(), y);
    ASSERT_TRUE(task.drop(2, source::asBefore));
    EXPECT_EQ(task.staff.NotSelb(2).pitch(), first.pitch());
    ASSERT_TRUE(task.drop(1, natural));
    EXPECT_EQ(first.pitch(), (Pitch{67, qzOf(4, 0)}));
    EXPECT_FALSE(task.drop(1, natural));
    task.staff.NoteSetzen(3, {98, qzOf(1, 0)}, ink::black);  // D7, written as D6
    ASSERT_TRUE(task.drop(3, sharp));
    EXPECT_EQ(task.staff.NotSelb(3).pitch(), (Pitch{99, qzOf(1, 1)})) << "still sounds high";
    ASSERT_TRUE(task.drop(3, source::octave));
    EXPECT_EQ(task.staff.NotSelb(3).pitch(), (Pitch{87, qzOf(1, 1)})) << "the mark has gone";
    ASSERT_TRUE(task.drop(3, source::octave));
    EXPECT_EQ(task.staff.NotSelb(3).pitch(), (Pitch{99, qzOf(1, 1)}));
    ASSERT_TRUE(task.drop(3, 5 + flat));
    EXPECT_EQ(task.staff.NotSelb(3).pitch(), (Pitch{85, qzOf(1, -1)}))
        << "a source without the mark";
}

TEST(Preview, ShowsLedgerLinesOfOneColumnAndLeavesNoTrace) {
    for (const auto& [base, key] : {std::pair{60, 6}, {72, -1}, {72, 0}, {36, 5}}) {
        SCOPED_TRACE(base);
        Task task(key, 0, base);
        const int s = task.staff.SchlZ();
        const Canvas& surface = task.staff.PicB(s);
        const std::string before = picture(surface);
        const auto over = [&](float x, DragPhase state = DragPhase::Over) {
            task.entry.DragOver(s, doubleSharp, x, 80, state);
            return picture(surface);
        };
        for (int c = 1; c <= 6; ++c) {
            const auto x = static_cast<float>(task.staff.layout().x(c));
            over(x, DragPhase::Enter);
            const std::string shown = over(x);
            EXPECT_NE(shown, before) << c;
            EXPECT_EQ(over(x + 10), shown);
            over(c == 6 ? 100 : x + 40);
            EXPECT_EQ(over(x), shown) << "the other column's went";
            EXPECT_EQ(over(c % 2 == 0 ? 60 : 320), before) << "the outer columns show none";
            over(x);
            EXPECT_EQ(over(x, DragPhase::Leave), before);
        }
        over(100);
        EXPECT_FALSE(task.entry.DragDrop(s, doubleSharp, 100, 2));
        EXPECT_EQ(picture(surface), before) << "a refused drop takes it away";
    }
}

TEST(Surface, PassesOnOnlyWhatComesFromThePaletteAndOnlyWhileOpen) {
    Task task;
    form::Label other(task.bench.form, {"other", 3});
    Canvas& surface = task.staff.PicB(0);
    const auto drop = [&](const form::Control& source) { surface.drop({source, 100, 96}); };
    EXPECT_TRUE(surface.wouldRefuse({other, 100, 96}));
    drop(other);
    EXPECT_EQ(task.taken, 0);
    task.staff.PicBNot.enabled = false;
    EXPECT_TRUE(surface.wouldRefuse({task.palette.NotP(sharp), 100, 96}));
    drop(task.palette.NotP(sharp));
    EXPECT_EQ(task.taken, 0);
    task.palette.PaletteEin();
    drop(task.palette.NotP(sharp));
    EXPECT_EQ(task.taken, 1);
}

TEST(Keys, WriteThroughTheRulesOfADrop) {
    using enum WritingKey;
    Task task;
    const auto press = [&](const std::vector<WritingKey>& keys) {
        for (const WritingKey key : keys) task.staff.PicBNot.key(key);
        const int c = task.keys.column();
        EXPECT_EQ(task.staff.PicBNot.mark(), (Rect{40 * c + 40, 0, 40, 158}));
        for (int i = 0; i < source::count; ++i)
            EXPECT_EQ(task.palette.NotP(i).mark() != Rect{}, i == task.keys.inHand());
        return std::pair(c, int(task.staff.NotSelb(c).accidental));
    };
    EXPECT_EQ(press({Left, Drop}), std::pair(1, 0)) << "no further left, nothing in hand";
    EXPECT_EQ(press({Up, Up, Up}), std::pair(1, 2)) << "no further than a double sharp";
    EXPECT_EQ(press({Down}), std::pair(1, 1));
    EXPECT_EQ(press({Right, Five}), std::pair(2, 0)) << "taken in hand alone";
    EXPECT_EQ(task.keys.inHand(), 4);
    EXPECT_EQ(press({Drop}), std::pair(2, 2));
    EXPECT_EQ(press({Right, Drop}), std::pair(3, 0)) << "dropped once";
    EXPECT_EQ(press(std::vector(7, Right)), std::pair(6, 0)) << "no further right";
}

TEST(Keys, PutANoteOnALimitRightAgain) {
    using enum WritingKey;
    for (int key = -6; key <= 6; ++key)
        for (const int base : {36, 48, 60, 72}) {
            Task task(key, 0, base);
            const int s = task.staff.SchlZ();
            for (const int y : {task.staff.grenze(s).highest(), task.staff.grenze(s).lowest()}) {
                SCOPED_TRACE(testing::Message() << key << ' ' << base << ' ' << y);
                task.staff.NoteSetzen(1, TonAusY(y, s, 0, 0), ink::black);
                for (const auto& [pressed, accidental] :
                     {std::pair{Up, 1}, {Down, 0}, {Down, -1}, {Up, 0}}) {
                    task.staff.PicBNot.key(pressed);
                    EXPECT_EQ(task.staff.NotSelb(1).accidental, accidental);
                }
            }
        }
}

}  // namespace
}  // namespace staff
