#include "sim/exercise.h"

#include "core/katalog.h"
#include "sim/number.h"
#include "sim/usage_error.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <set>

namespace sim {

namespace {

using core::Zustand;

// MIDI notes: the highest that a set-up form offers, and what no task may reach.
constexpr int highest = 96;
constexpr int beyond = 120;
constexpr int mostChosen = decltype(Zustand::einzel_wahl)::size();
constexpr std::array allFields{
    Field{"theoriewahl", &Zustand::theoriewahl, 0, 1},
    Field{"ueb_typ", &Zustand::ueb_typ, 1, 4},
    Field{"uebungsmodus", &Zustand::uebungsmodus, 0, 4},
    Field{"prfNr", &Zustand::prfNr, 0, 5},
    Field{"zufallsNr", &Zustand::zufallsNr, 0, 32767},
    Field{"abfrage", &Zustand::abfrage, 0, 1},
    Field{"abfolge", &Zustand::abfolge, 0, 1},
    Field{"skal_typ", &Zustand::skal_typ, 0, core::katalog::kategorienAnz - 1},
    Field{"ska_ausw", &Zustand::ska_ausw, 0, 1},
    Field{"richtung", &Zustand::richtung, 0, 2},
    Field{"final", &Zustand::final, 0, 2},
    Field{"oktAnz", &Zustand::oktAnz, 0, 3},
    Field{"FrquMinAkt", &Zustand::FrquMinAkt, 24, highest - 24},
    Field{"FrquMaxAkt", &Zustand::FrquMaxAkt, 48, highest},
    Field{"tempoIdx", &Zustand::tempoIdx, 0, 9},
    Field{"frequenz", &Zustand::frequenz, 0, 1},
    Field{"stimmung", &Zustand::stimmung, 0, 2},
    Field{"an_zeig", &Zustand::an_zeig, 0, 1},
};

void chooseScales(Zustand& z, const std::string& list) {
    int count = 0;
    for (std::size_t at = 0; at <= list.size();) {
        const std::size_t comma = std::min(list.find(',', at), list.size());
        if (count == mostChosen)
            throw UsageError("einzel_wahl: more than " + std::to_string(mostChosen) + " scales");
        const auto code = wholeNumber("einzel_wahl", list.substr(at, comma - at),
                                      -core::katalog::maxSkalen, core::katalog::maxSkalen);
        z.einzel_wahl[count++] = code;
        at = comma + 1;
    }
    z.einzelAnz = count - 1;
    z.ska_ausw = 1;
}

void assign(Zustand& z, const Assignment& assignment) {
    const std::string& name = assignment.field;
    const std::string& value = assignment.value;
    if (name == "einzel_wahl") return chooseScales(z, value);
    const auto field =
        std::ranges::find_if(allFields, [&](const Field& f) { return name == f.name; });
    if (field == allFields.end()) {
        std::string known;
        for (const Field& f : allFields) known += std::string(f.name) + ", ";
        throw UsageError("no field \"" + name + "\"; there are " + known + "einzel_wahl");
    }
    z.*field->member = wholeNumber(name, value, field->least, field->most);
}

void checkScales(const Zustand& z) {
    for (int i = 0; i <= z.einzelAnz; ++i) {
        const int scale = std::abs(z.einzel_wahl[i]);
        if (scale < 1 || scale > z.skal_anz + 1)
            throw UsageError("einzel_wahl: " + std::to_string(z.einzel_wahl[i]) +
                             " is no scale of skal_typ " + std::to_string(z.skal_typ) +
                             ", which has 1.." + std::to_string(z.skal_anz + 1) +
                             ", negative for descending");
    }
}

}  // namespace

const engine::Exercise& exercise(const std::string& form) {
    const auto* const found =
        std::ranges::find(engine::exercises, form, &engine::Exercise::worksheet);
    if (found == engine::exercises.end())
        throw UsageError("no learner for the form \"" + form + "\"");
    return *found;
}

std::span<const Field> fields() { return allFields; }

core::Zustand exerciseState(const engine::Exercise& exercise,
                            const std::vector<Assignment>& assignments) {
    Zustand z;
    z.theoriewahl = exercise.theoriewahl;
    z.ueb_typ = exercise.ueb_typ;
    std::set<std::string> given;
    for (const Assignment& assignment : assignments) {
        assign(z, assignment);
        given.insert(assignment.field);
    }
    if (z.theoriewahl != exercise.theoriewahl || z.ueb_typ != exercise.ueb_typ)
        throw UsageError(std::string(exercise.worksheet) + " is theoriewahl " +
                         std::to_string(exercise.theoriewahl) + ", ueb_typ " +
                         std::to_string(exercise.ueb_typ));
    if (exercise.tonality != engine::Tonality::Sounding && z.skal_typ != 0)
        throw UsageError(std::string(exercise.worksheet) + " is for skal_typ 0 only");
    z.skal_anz = core::katalog::kategorie(z.skal_typ).skal_max;
    if (z.ska_ausw == 1 && !given.contains("einzel_wahl"))
        throw UsageError("ska_ausw=1 needs einzel_wahl");
    if (z.ska_ausw == 1) checkScales(z);
    if (z.FrquMinAkt + 12 * (z.oktAnz + 2) > beyond)
        throw UsageError("the range of oktAnz above FrquMinAkt goes beyond MIDI note " +
                         std::to_string(beyond));
    if (!given.contains("FrquMaxAkt"))
        z.FrquMaxAkt = std::min(int(z.FrquMinAkt + 12 * (z.oktAnz + 2)), highest);
    int i = 0;
    for (const int duration : core::katalog::tempo_dauer) z.tempo_dauer[i++] = duration;
    return z;
}

}  // namespace sim
