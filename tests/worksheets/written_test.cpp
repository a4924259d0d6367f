// Spelled tasks on their staff: every key, mode and range stays on it and can be written right.
#include "engine/bare_run.h"
#include "form/bench_form.h"
#include "staff/ink.h"
#include "staff/note_entry.h"

#include <gtest/gtest.h>

namespace worksheets {
namespace {

using engine::Task;

/// On its staff, rising by a letter a note, and read back from it; what is written lies within the
/// limits.
void expectOnStaff(const Task& a, const core::Zustand& z, bool written) {
    const int s = a.noten[7] < 67 ? 1 : 0;
    const staff::Limits limits =
        staff::limitsOn(s, {a.quintLage, engine::TonalityChoice::stufenQz(0, a.skala_nr),
                            a.transpLage, z.FrquMinAkt, z.FrquMaxAkt});
    int below = 0;
    for (int k = 0; k < 8; ++k) {
        const core::Pitch note = a.pitch(k);
        const staff::Position place = staff::YAusTon(note, s);
        ASSERT_GE(place.y, written ? 20 : 8) << "the head is seen whole";
        ASSERT_LE(place.y, written ? 128 : 136);
        const int height = place.y - 28 * place.octave;
        ASSERT_TRUE(k == 0 || height == below - 4);
        below = height;
        // B#1, which only begins a task and takes no drop, lies below the lowest C.
        if (note.midi > 24) {
            ASSERT_EQ(staff::TonAusY(place.y, s, core::accidental(note.qz), place.octave), note);
        }
        if (written && k > 0 && k < 7) {
            ASSERT_GE(place.y, limits.highest());
            ASSERT_LE(place.y, limits.lowest());
        }
    }
}

TEST(Task, EveryKeyModeAndRangeStaysOnItsStaff) {
    for (const engine::Exercise* exercise : {&engine::reading, &engine::writing})
        for (int size = 0; size < 4; ++size) {
            const bool written = exercise->isWritten();
            const int range = 12 * (size + (written ? 2 : 1));
            for (int lowest = 36; lowest + range <= 96; lowest += 12) {
                SCOPED_TRACE(testing::Message() << exercise->worksheet << lowest << ' ' << range);
                engine::BareRun bare(*exercise);
                bare.z.oktAnz = size;
                bare.z.FrquMinAkt = lowest;
                bare.z.FrquMaxAkt = lowest + range;
                bare.begin();
                for (int n = 0; n < 1500; ++n)
                    ASSERT_NO_FATAL_FAILURE(expectOnStaff(bare.run->draw(), bare.z, written));
            }
        }
}

/// Every task begins as letters between its first and last note, and dropping the right accidental
/// on each makes it right.
TEST(Task, CanBeWrittenRight) {
    engine::BareRun bare(engine::writing);
    bare.z.FrquMaxAkt = 84;
    bare.begin();
    for (int n = 0; n < 300; ++n) {
        const Task& a = bare.run->draw();
        form::Bench bench;
        staff::Staff staff{bench.form};
        staff::NoteEntry entry{staff};
        staff.SchluesselWahl(a.noten[7]);
        staff.NotenzeileAufbauen(8, {a.quintLage, engine::TonalityChoice::stufenQz(0, a.skala_nr),
                                     a.transpLage, bare.z.FrquMinAkt, bare.z.FrquMaxAkt});
        const auto judged = [&] {
            return engine::writtenAnswer(a, [&](int c) { return staff.NotSelb(c).pitch(); });
        };
        int missing = 0;
        for (int c = 0; c < 8; ++c) staff.NoteSetzen(c, a.shown(a.index(c)), staff::ink::black);
        for (int c = 1; c < 7; ++c) missing += core::accidental(a.pitchAt(c).qz) != 0 ? 1 : 0;
        EXPECT_EQ(judged().index, missing);
        for (int c = 1; c < 7; ++c) {
            const int accidental = core::accidental(a.pitchAt(c).qz);
            const auto x = static_cast<float>(staff.layout().x(c)),
                       y = static_cast<float>(staff.NotSelb(c).y());
            EXPECT_EQ(entry.DragDrop(staff.SchlZ(), staff::source::with(accidental), x, y),
                      accidental != 0);
        }
        EXPECT_TRUE(judged().right);
    }
}

}  // namespace
}  // namespace worksheets
