#include "sim/writer.h"

#include "staff/noteneingabe.h"
#include "staff/notenzeile.h"

namespace sim {

namespace {

using staff::Notenzeile;
namespace quelle = staff::quelle;

constexpr int first = 1, last = 6;  // columns that can be written in

Accidentals wanted(const engine::Aufgabe& task) {
    Accidentals all{};
    for (int c = first; c <= last; ++c) base::at(all, c) = core::vorzeichen(task.tonAn(c).qz);
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

void drop(worksheets::Arbeitsblatt& sheet, int column, int accidental) {
    Notenzeile& staff = *sheet.notenzeile();
    const staff::Spalte& note = staff.NotSelb(column);
    if (note.vorzeichen == accidental) return;
    const form::Control* field = sheet.find(quelle::feld, quelle::mit(accidental));
    const int y = staff.grenze(staff.SchlZ()).dazwischen(note.y());
    staff.PicB(staff.SchlZ())
        .ablegen({*field, static_cast<float>(staff.lage().x(column)), static_cast<float>(y)});
}

}  // namespace

Accidentals accidentals(const engine::Aufgabe& task, Writing how, base::Rnd& chance) {
    Accidentals all = wanted(task);
    if (how == Writing::Enharmonic) misspell(all, task.akt_richtung);
    if (how == Writing::Wrong) {
        int& one = base::at(all, first + chance.below(last));
        one = one > 0 ? one - 1 : one + 1;
    }
    return all;
}

void writeScale(worksheets::Arbeitsblatt& sheet, Writing how, base::Rnd& chance) {
    const Accidentals all = accidentals(sheet.lauf().aufgabe(), how, chance);
    for (int c = first; c <= last; ++c) drop(sheet, c, base::at(all, c));
}

}  // namespace sim
