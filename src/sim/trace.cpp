#include "sim/trace.h"

#include "sim/exercise.h"

#include <algorithm>

namespace sim {

namespace {

template <class Array>
auto writeItems(JsonLine& line, const Array& array) {
    return [&](int i) { line.item(int(array[i])); };
}

}  // namespace

void Trace::notice(worksheets::Worksheet::Turn turn, const worksheets::Worksheet& sheet,
                   const core::Zustand& z) {
    using enum worksheets::Worksheet::Turn;
    if (turn == TaskDrawn) task(sheet, z);
    stream_ << drawn_;
    drawn_.clear();
    switch (turn) {
        case RunReady:
            return run(sheet, z);
        case Answered:
            return answer(sheet.run());
        case Closed:
            return closed(sheet.run(), z);
        case Clock:
            stream_ << JsonLine("clock")
                           .number("restZeit", int(sheet.run().standing().restZeit))
                           .finish();
            return;
        case TaskDrawn:
        case AnswerOpen:
        case RunEnded:
            return;
    }
}

void Trace::follow(worksheets::Worksheet& sheet) {
    staff_ = sheet.staff();
    draws_ = {};
    if (staff_) draws_ = staff_->painted.connect([this](int column) { draw(column); });
}

/// Notes are told after the turn that puts them there.
void Trace::draw(int column) {
    const staff::Column& note = staff_->NotSelb(column);
    drawn_ += JsonLine("draw")
                  .number("c", column)
                  .number("y", int(note.y()))
                  .number("x", int(staff_->layout().x(column)))
                  .number("qz", int(note.qz))
                  .number("midi", int(note.midi))
                  .number("glyph", int(note.zeichen))
                  .number("colour", int(note.farbe))
                  .finish();
}

/// What only worksheets with a staff have.
void Trace::spelling(JsonLine& line, const worksheets::Worksheet& sheet) {
    const engine::Task& a = sheet.run().task();
    const bool writing = sheet.run().exercise().isWritten();
    line.number(writing ? "quintLage" : "vzAnz", int(a.quintLage));
    line.list(writing ? "notenQz" : "tonPos", a.tonAnz, writeItems(line, a.notenQz));
    if (writing) {
        line.list("zeigNoten", a.tonAnz, [&](int k) { line.item(int(a.shown(k).midi)); });
        line.list("zeigQz", a.tonAnz, [&](int k) { line.item(int(a.shown(k).qz)); });
    }
    line.number("SchlZ", int(staff_->SchlZ()));
}

void Trace::run(const worksheets::Worksheet& sheet, const core::Zustand& z) {
    JsonLine line("run");
    line.text("form", sheet.name());
    for (const Field& field : fields()) line.number(field.name, int(z.*field.member));
    line.number("skal_anz", int(z.skal_anz));
    if (z.ska_ausw == 1) line.list("einzel_wahl", z.einzelAnz + 1, writeItems(line, z.einzel_wahl));
    line.number("n", int(sheet.run().pool().potSkala()))
        .number("tonAnz", int(sheet.run().task().tonAnz));
    line.number("pruefAufgaben", int(sheet.run().standing().pruefAufgaben));
    line.number("restZeit", int(sheet.run().standing().restZeit));
    stream_ << line.finish();
}

void Trace::task(const worksheets::Worksheet& sheet, const core::Zustand& z) {
    const engine::Task& a = sheet.run().task();
    JsonLine line("task");
    line.number("t", loop_.elapsed()).number("skal_typ", int(z.skal_typ));
    line.number("skala_nr", int(a.skala_nr)).number("akt_richtung", int(a.akt_richtung));
    line.number("transp", int(a.transp)).number("oktLage", int(a.oktLage));
    line.list("noten", a.tonAnz, writeItems(line, a.noten));
    line.list("stimmWert", a.tonAnz, writeItems(line, a.stimmWert));
    line.list("ton_abfolg", a.tonAnz, writeItems(line, a.ton_abfolg));
    if (staff_) spelling(line, sheet);
    const engine::TaskPool& pool = sheet.run().pool();
    line.list("matbox", pool.matboxanz(), [&](int i) { line.item(int(pool.code(i + 1))); });
    line.number("matboxanz", int(pool.matboxanz()));
    stream_ << line.finish();
}

void Trace::answer(const engine::Run& run) {
    const engine::Answer& answer = run.lastAnswer();
    JsonLine line("answer");
    line.number("t", loop_.elapsed()).number("index", answer.index).truth("right", answer.right);
    line.decimal("punkte", run.task().attempt.punkte).decimal("AntwDau", answer.dauer);
    line.number("aufgZustand", static_cast<int>(run.aufgZustand()));
    stream_ << line.finish();
}

void Trace::closed(const engine::Run& run, const core::Zustand& z) {
    JsonLine line("closed");
    const float w = run.standing().score;
    line.decimal("w", w);
    if (!core::isScored(z))
        line.null("booked");
    else
        line.decimal("booked", w - 4 * z.bewertung_basis);
    line.number("matbox_zahl", int(run.pool().matbox_zahl()))
        .number("FloodPercent", run.pool().percent());
    line.list("weights", core::isTraining(z) ? int(run.pool().potSkala()) : 0, [&](int i) {
        line.open();
        line.item(int(z.mathaeufgk_box(i + 1, core::gewicht::spalteCode)));
        line.item(int(z.mathaeufgk_box(i + 1, core::gewicht::spalteGewicht)));
        line.close();
    });
    line.number("restAufgaben", int(run.standing().restAufgaben));
    stream_ << line.finish();
}

void Trace::hear(rehearsal::MidiTap& device) {
    device.queued = [this](const sound::MidiEvent& event) { midi(event, event.time); };
    device.sent = [this](const sound::MidiEvent& event) { midi(event, -1); };
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
        const auto& row = base::at(rows, i);
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
