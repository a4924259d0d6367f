#include "sim/writer.h"

#include "staff/note_entry.h"
#include "staff/staff.h"

namespace sim {

namespace {

using staff::Staff;
namespace source = staff::source;

constexpr int first = 1, last = 6;  // columns that can be written in

Accidentals wanted(const engine::Task& task) {
    Accidentals all{};
    for (int c = first; c <= last; ++c) base::at(all, c) = core::accidental(task.pitchAt(c).qz);
    return all;
}

void misspell(Accidentals& accidentals, int rising) {
    for (int c = first; c <= last; ++c) {
        int& here = base::at(accidentals, c);
        const int below = c - rising;
        if (here >= 0 || below < first || below > last) continue;
        here = 0;
        base::at(accidentals, below) = 1;
    }
}

void drop(worksheets::Worksheet& sheet, int column, int accidental) {
    Staff& staff = *sheet.staff();
    const staff::Column& note = staff.NotSelb(column);
    if (note.accidental == accidental) return;
    const form::Control* field = sheet.find(source::control, source::with(accidental));
    const int y = staff.grenze(staff.SchlZ()).nearestBetween(note.y());
    staff.PicB(staff.SchlZ())
        .drop({*field, static_cast<float>(staff.layout().x(column)), static_cast<float>(y)});
}

}  // namespace

Accidentals accidentals(const engine::Task& task, Writing how, base::Rnd& chance) {
    Accidentals all = wanted(task);
    if (how == Writing::Enharmonic) misspell(all, task.akt_richtung);
    if (how == Writing::Wrong) {
        int& one = base::at(all, first + chance.below(last));
        one = one > 0 ? one - 1 : one + 1;
    }
    return all;
}

void writeScale(worksheets::Worksheet& sheet, Writing how, base::Rnd& chance) {
    const Accidentals all = accidentals(sheet.run().task(), how, chance);
    for (int c = first; c <= last; ++c) drop(sheet, c, base::at(all, c));
}

}  // namespace sim
