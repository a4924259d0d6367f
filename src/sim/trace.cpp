#include "sim/trace.h"

#include "determine/arbeitsblatt1b.h"
#include "sim/exercise.h"
#include "staff/schreib_blatt.h"

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
    if (turn == AufgabeGezogen) task(sheet, z);
    stream_ << drawn_;
    drawn_.clear();
    switch (turn) {
        case LaufBereit:
            return run(sheet, z);
        case Geantwortet:
            return answer(sheet, z);
        case Geschlossen:
            return closed(sheet, z);
        case Uhr:
            stream_ << JsonLine("clock").number("restZeit", int(sheet.restZeit())).finish();
            return;
        case AufgabeGezogen:
        case AntwortOffen:
        case LaufEnde:
            return;
    }
}

void Trace::follow(engine::Arbeitsblatt& sheet) {
    staff_ = nullptr;
    if (auto* writing = dynamic_cast<staff::SchreibBlatt*>(&sheet)) staff_ = &writing->notenzeile();
    if (auto* naming = dynamic_cast<determine::Arbeitsblatt1b*>(&sheet))
        staff_ = &naming->notenzeile();
    draws_ = {};
    if (staff_) draws_ = staff_->gemalt.connect([this](int column) { draw(column); });
}

/// Notes are told after the turn that puts them there.
void Trace::draw(int column) {
    const staff::Spalte& note = staff_->NotSelb(column);
    drawn_ += JsonLine("draw")
                  .number("c", column)
                  .number("y", int(note.y()))
                  .number("x", int(staff_->lage().x(column)))
                  .number("qz", int(note.qz))
                  .number("midi", int(note.midi))
                  .number("glyph", int(note.zeichen))
                  .number("colour", int(note.farbe))
                  .finish();
}

/// What only worksheets with a staff have.
void Trace::spelling(JsonLine& line, const engine::Arbeitsblatt& sheet) {
    const engine::Aufgabe& a = sheet.aufgabe();
    const auto* writing = dynamic_cast<const staff::SchreibBlatt*>(&sheet);
    line.number(writing ? "quintLage" : "vzAnz", int(a.quintLage));
    line.list(writing ? "notenQz" : "tonPos", a.tonAnz, writeItems(line, a.notenQz));
    if (writing) {
        const auto shown = [&](int k) {
            const staff::Ton ton{a.noten[k], a.notenQz[k]};
            return k == 0 || k == a.tonAnz - 1 ? ton : staff::ohneVorzeichen(ton);
        };
        line.list("zeigNoten", a.tonAnz, [&](int k) { line.item(int(shown(k).midi)); });
        line.list("zeigQz", a.tonAnz, [&](int k) { line.item(int(shown(k).qz)); });
    }
    line.number("SchlZ", int(staff_->SchlZ()));
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

void Trace::task(const engine::Arbeitsblatt& sheet, const core::Zustand& z) {
    const engine::Aufgabe& a = sheet.aufgabe();
    JsonLine line("task");
    line.number("t", loop_.elapsed()).number("skal_typ", int(z.skal_typ));
    line.number("skala_nr", int(z.skala_nr)).number("akt_richtung", int(z.akt_richtung));
    line.number("transp", int(a.transp)).number("oktLage", int(a.oktLage));
    line.list("noten", a.tonAnz, writeItems(line, a.noten));
    line.list("stimmWert", a.tonAnz, writeItems(line, a.stimmWert));
    line.list("ton_abfolg", a.tonAnz, writeItems(line, a.ton_abfolg));
    if (staff_) spelling(line, sheet);
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
