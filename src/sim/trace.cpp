#include "sim/trace.h"

#include "sim/exercise.h"
#include "sim/json_line.h"

#include <algorithm>

namespace sim {

namespace {

template <class Array>
auto writeItems(JsonLine& line, const Array& array) {
    return [&](int i) { line.item(int(array[i])); };
}

bool training(const core::Zustand& z) {
    return z.uebungsmodus == core::modus::training || z.uebungsmodus == core::modus::fortsetzung;
}

int bar(const engine::Arbeitsblatt& sheet) {
    return static_cast<const form::Panel*>(sheet.find("matboxanz"))->floodPercent();
}

}  // namespace

void Trace::notice(engine::Arbeitsblatt::Ereignis turn, const engine::Arbeitsblatt& sheet,
                   const core::Zustand& z) {
    using enum engine::Arbeitsblatt::Ereignis;
    switch (turn) {
        case LaufBereit:
            return run(sheet, z);
        case AufgabeGezogen:
            return task(sheet.aufgabe(), z);
        case Geantwortet:
            return answer(sheet, z);
        case Geschlossen:
            return closed(sheet, z);
        case Uhr:
            stream_ << JsonLine("clock").number("restZeit", int(sheet.restZeit())).finish();
            return;
        case AntwortOffen:
        case LaufEnde:
            return;
    }
}

void Trace::run(const engine::Arbeitsblatt& sheet, const core::Zustand& z) {
    JsonLine line("run");
    line.text("form", sheet.name());
    for (const Field& field : fields()) line.number(field.name, int(z.*field.member));
    line.number("skal_anz", int(z.skal_anz));
    if (z.ska_ausw == 1) line.list("einzel_wahl", z.einzelAnz + 1, writeItems(line, z.einzel_wahl));
    line.number("n", int(z.potSkala)).number("tonAnz", int(sheet.aufgabe().tonAnz));
    line.number("pruefAufgaben", int(sheet.pruefAufgaben()));
    line.number("restZeit", int(sheet.restZeit()));
    stream_ << line.finish();
}

void Trace::task(const engine::Aufgabe& a, const core::Zustand& z) {
    JsonLine line("task");
    line.number("t", loop_.elapsed()).number("skal_typ", int(z.skal_typ));
    line.number("skala_nr", int(z.skala_nr)).number("akt_richtung", int(z.akt_richtung));
    line.number("transp", int(a.transp)).number("oktLage", int(a.oktLage));
    line.list("noten", a.tonAnz, writeItems(line, a.noten));
    line.list("stimmWert", a.tonAnz, writeItems(line, a.stimmWert));
    line.list("ton_abfolg", a.tonAnz, writeItems(line, a.ton_abfolg));
    const int rows = std::min(int(z.matboxanz), std::max(0, z.matbox.rows() - 1));
    line.list("matbox", rows, [&](int i) { line.item(int(z.matbox(i + 1, 0))); });
    line.number("matboxanz", int(z.matboxanz));
    stream_ << line.finish();
}

void Trace::answer(const engine::Arbeitsblatt& sheet, const core::Zustand& z) {
    const auto& answer = sheet.letzteAntwort();
    JsonLine line("answer");
    line.number("t", loop_.elapsed()).number("index", answer.index).truth("right", answer.richtig);
    line.decimal("punkte", z.punkte).decimal("AntwDau", answer.dauer);
    line.number("aufgZustand", static_cast<int>(sheet.aufgZustand()));
    stream_ << line.finish();
}

void Trace::closed(const engine::Arbeitsblatt& sheet, const core::Zustand& z) {
    JsonLine line("closed");
    const float w = sheet.letzteWertung();
    line.decimal("w", w);
    if (z.uebungsmodus == core::modus::ausprobieren)
        line.null("booked");
    else
        line.decimal("booked", w - 4 * z.bewertung_basis);
    line.number("matbox_zahl", int(z.matbox_zahl)).number("FloodPercent", bar(sheet));
    line.list("weights", training(z) ? int(z.potSkala) : 0, [&](int i) {
        line.open();
        line.item(int(z.mathaeufgk_box(i + 1, 0)));
        line.item(int(z.mathaeufgk_box(i + 1, 1)));
        line.close();
    });
    line.number("restAufgaben", int(sheet.restAufgaben()));
    stream_ << line.finish();
}

void Trace::midi(const sound::MidiEvent& event, int time) {
    stream_ << JsonLine("midi")
                   .number("t", loop_.elapsed())
                   .number("status", event.status)
                   .number("data1", event.data1)
                   .number("data2", event.data2)
                   .number("time", time)
                   .finish();
}

void Trace::result(const results::Testergebnis& form) {
    const auto rows = form.zeilen();
    JsonLine line("result");
    line.list("rows", static_cast<int>(rows.size()), [&](int i) {
        const auto& row = rows[static_cast<std::size_t>(i)];
        line.open();
        line.quoted(row.name);
        line.quoted(row.prozent);
        line.close();
    });
    stream_ << line.text("total", form.gesamtText()).finish();
}

void Trace::end(const Outcome& outcome) {
    stream_ << JsonLine("end").text("reason", endingName(outcome.ending)).finish();
}

}  // namespace sim
