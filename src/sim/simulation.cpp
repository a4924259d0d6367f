#include "sim/simulation.h"

#include "sim/seeds.h"
#include "sim/usage_error.h"

namespace sim {

namespace {

constexpr std::int64_t day = 24LL * 60 * 60 * 1000;

std::optional<FileWords> wordsOf(const Options& options) {
    if (options.words.empty()) return {};
    return FileWords(options.words);
}

}  // namespace

Simulation::Simulation(const Options& options, std::ostream* trace)
    : options_(options),
      exercise_(exercise(options.form)),
      state_(exerciseState(options)),
      words_(wordsOf(options)),
      trace_(trace ? std::make_unique<Trace>(*trace, room_.loop) : nullptr),
      drill_(room_.ports(host_, seeds(options.seed), words_ ? &*words_ : nullptr),
             {"", folder_.path().string(), "simulation"}, output_),
      pupil_(room_.loop, options.learner, learnersSeed(options.seed)),
      road_(drill_, exercise_) {
    host_.user.reset();
    room_.dialogs.otherwise = options.keep;
    if (trace_) trace_->hear(output_);
    if (!drill_.programm.forms.knows(options.form))
        throw UsageError("the drill has no form \"" + options.form + "\"");
    made_ = drill_.programm.forms.made.connect([this](form::Form& form) { made(form); });
    gone_ = drill_.programm.forms.gone.connect([this](form::Form& form) { gone(form); });
    if (!options.throughSetup) startUp();
}

/// What the start form and the opening of a set-up form do.
void Simulation::startUp() {
    core::Programm& p = drill_.programm;
    p.host.HostVerbinden(core::Host::programm);
    p.worte.SprachenLaden();
    p.worte.SpracheSetzen(p.host.HostSprache());
    p.katalog.KatalogInit(p.worte);
    drill_.midi.MidiGeraete(output_);
    drill_.midi.MidiInit(output_);
}

/// What the button of a set-up form does.
void Simulation::openWorksheet() {
    core::Zustand& z = drill_.programm.zustand;
    z = state_;
    if (kept_) z.uebungsmodus = core::modus::fortsetzung;
    z.einst_liste = {std::to_string(2 * options_.assignments.size())};
    for (const auto& [field, value] : options_.assignments) {
        z.einst_liste.push_back(field);
        z.einst_liste.push_back(value);
    }
    drill_.wertung.vorbereiten();
    drill_.xml.SkalaXmlNeu();
    drill_.programm.forms.show(options_.form);
}

Outcome Simulation::run() {
    outcome_ = {};
    over_ = false;
    host_.forget();
    room_.dialogs.messages.clear();
    room_.dialogs.questions.clear();
    const std::int64_t begin = lastTurn_ = room_.loop.elapsed();
    if (!options_.throughSetup)
        openWorksheet();
    else if (kept_)
        road_.resume();
    else
        road_.go(options_.assignments, state_);
    room_.loop.runUntil([this] {
        if (room_.loop.elapsed() - lastTurn_ > day) throw std::logic_error("the run stands still");
        return over_;
    });
    outcome_.milliseconds = room_.loop.elapsed() - begin;
    std::error_code ignored;
    std::filesystem::remove(drill_.xml.datei(), ignored);
    return outcome_;
}

void Simulation::made(form::Form& form) {
    if (auto* sheet = dynamic_cast<worksheets::Worksheet*>(&form)) {
        sheet_ = sheet;
        if (trace_) trace_->follow(*sheet);
        pupil_.begin(*sheet, options_.tasks == 0 ? endless : options_.tasks);
        turns_ = sheet->turn.connect([this](worksheets::Worksheet::Turn turn) { notice(turn); });
    }
    if (auto* result = dynamic_cast<results::Testergebnis*>(&form))
        pupil_.readResult(form, [this, result] {
            outcome_.total = result->gesamtText();
            if (trace_) trace_->result(*result);
        });
}

void Simulation::notice(worksheets::Worksheet::Turn turn) {
    lastTurn_ = room_.loop.elapsed();
    if (trace_) trace_->notice(turn, *sheet_, drill_.programm.zustand);
    pupil_.notice(turn);
    if (turn == worksheets::Worksheet::Turn::RunEnded) outcome_.ending = ending();
}

Ending Simulation::ending() const {
    if (const auto end = endingOf(sheet_->run())) return *end;
    if (pupil_.leftAtLimit()) return options_.tasks == 0 ? Ending::Endless : Ending::Left;
    return Ending::Clock;
}

void Simulation::gone(form::Form& form) {
    if (&form != sheet_) return;
    outcome_.tasks = pupil_.tasks();
    outcome_.rightFirst = pupil_.rightFirst();
    outcome_.fault = fault();
    if (!outcome_.fault.empty()) outcome_.ending = Ending::Fault;
    outcome_.weigh(sheet_->run(), drill_.programm.zustand);
    kept_ = options_.keep && outcome_.ending == Ending::Left && sheet_->run().mayBeKept();
    if (trace_) trace_->end(outcome_);
    over_ = true;
}

std::string Simulation::fault() const {
    if (!host_.faults.empty()) {
        const core::Value& first = host_.faults.front();
        return first.at(0).text() + ": " + first.at(2).text();
    }
    const auto& messages = room_.dialogs.messages;
    return messages.empty() ? std::string() : messages.front().text;
}

}  // namespace sim
