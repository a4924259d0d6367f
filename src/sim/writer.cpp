#include "sim/writer.h"

#include <array>
#include <utility>

namespace sim {

namespace {

using staff::Notenzeile;
namespace quelle = staff::quelle;

constexpr int first = 1, last = 6;  // columns that can be written in
using Accidentals = std::array<int, last + 1>;

Accidentals wanted(const staff::SchreibBlatt& sheet) {
    Accidentals all{};
    for (int c = first; c <= last; ++c)
        all[static_cast<std::size_t>(c)] = staff::vorzeichen(sheet.erwartung().inSpalte(c).qz);
    return all;
}

void misspell(Accidentals& accidentals, int rising) {
    for (int c = first; c <= last; ++c) {
        int& here = accidentals[static_cast<std::size_t>(c)];
        const int below = c - rising;
        if (here >= 0 || below < first || below > last) continue;
        here = 0;
        accidentals[static_cast<std::size_t>(below)] = 1;
    }
}

void drop(staff::SchreibBlatt& sheet, int column, int accidental) {
    Notenzeile& staff = sheet.notenzeile();
    const staff::Spalte& note = staff.NotSelb(column);
    if (note.vorzeichen == accidental) return;
    const form::Control* field = sheet.find(quelle::feld, quelle::mit(accidental));
    const int y = staff.grenze(staff.SchlZ()).dazwischen(note.y());
    staff.PicB(staff.SchlZ())
        .ablegen({*field, static_cast<float>(staff.lage().x(column)), static_cast<float>(y)});
}

}  // namespace

void writeScale(staff::SchreibBlatt& sheet, Writing how, base::Rnd& chance) {
    Accidentals accidentals = wanted(sheet);
    if (how == Writing::Enharmonic) misspell(accidentals, sheet.erwartung().akt_richtung);
    if (how == Writing::Wrong) {
        int& one = accidentals.at(static_cast<std::size_t>(first) +
                                  static_cast<std::size_t>(int(chance.below(last))));
        one = one > 0 ? one - 1 : one + 1;
    }
    for (int c = first; c <= last; ++c) drop(sheet, c, accidentals[static_cast<std::size_t>(c)]);
}

}  // namespace sim
