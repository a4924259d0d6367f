#include "worksheets/worksheet.h"

#include "core/formnamen.h"
#include "core/wort.h"
#include "worksheets/name_field.h"
#include "worksheets/note_field.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace worksheets {

namespace colours = base::colours;
using engine::TaskState;
namespace wort = core::wort;

namespace {

constexpr int tetrachords = 6;
/// Which keys do what, by whether a scale is written and whether it sounds.
constexpr std::array<std::array<wort::Id, 2>, 2> keyTexts{
    {{wort::identifySilentKeys, wort::identifyKeys}, {wort::writeSilentKeys, wort::writeKeys}}};

}  // namespace

Worksheet::Worksheet(core::Programm& programm, sound::Midi& midi, results::Wertung& wertung,
                     results::Skalaxml& xml, const engine::Exercise& exercise)
    : Formular(programm, exercise.worksheet),
      midi_(midi),
      xml_(xml),
      recorder_(xml, programm.katalog, programm.zustand, exercise),
      run_(programm.zustand, programm.rnd, wertung, exercise, &recorder_),
      kept_(programm, run_) {
    setCaption(exercise.title);
    CmdNextAufg.onClick = {"CmdNextAufg_click.", [this] {
                               CmdNextAufg.enabled = false;
                               MatWahl();
                           }};
    zurueck.onClick = {"zurueck_click.", [this] { zurueck_click(); }};
    cmdHilfe.onClick = {"cmdHilfe_click.", [this] { HilfeZeigen(); }};
    cmd_test_ein.onClick = {"cmd_test_ein_click.", [this] { showTestStanding(true); }};
    cmd_test_aus.onClick = {"cmd_test_aus_click.", [this] { showTestStanding(false); }};
    start.onTick = {"start_timer.", [this] { start_timer(); }};
    WahlAutomat.onTick = {"WahlAutomat_timer.", [this] {
                              WahlAutomat.stop();
                              LbNextAufg.visible = false;
                              MatWahl();
                          }};
    Uhrzeit.onTick = {"Uhrzeit_timer.", [this] { Uhrzeit_timer(); }};
    for (form::Group& area : PicUetyp) area.visible = false;
    WaitMeldung.visible = false;
    LbNextAufg.visible = false;
    ergebnis.backColour = colours::black;
    CmdNextAufg.enabled = false;

    NoteField* noteField = nullptr;
    const FieldPlace place{*this, p, run_, PicArb1, PicArb2, abbruch_};
    if (exercise.isWritten()) {
        auto field = std::make_unique<NoteField>(place);
        noteField = field.get();
        staff_ = &field->staff();
        field_ = std::move(field);
    } else {
        auto field = std::make_unique<NameField>(place);
        staff_ = field->staff();
        field_ = std::move(field);
    }
    field_->give = [this](const engine::Answer& answer) { scoreAnswer(answer); };
    if (!exercise.sounds()) return;
    presentation_.emplace(*this, p, midi, PicArb1);
    if (noteField) presentation_->offerOwnVersion([noteField] { return noteField->ownVersion(); });
}

Worksheet::~Worksheet() = default;

/// Only the first activation of a form begins its run.
void Worksheet::activate() {
    if (begun_) return;
    begun_ = true;
    start.start();
}

void Worksheet::setCaptions() {
    const engine::Exercise& exercise = run_.exercise();
    beschriften({{copyright, wort::copyright},
                 {LbNextAufg, wort::nextTask},
                 {zurueck, wort::back},
                 {true_false(0), wort::right},
                 {true_false(1), wort::wrong},
                 {ergebnis_anz(0), wort::trainingProgress},
                 {ergebnis_anz(1), wort::taskSolved},
                 {ergebnis_anz(2), wort::tooManyErrors},
                 {cmd_test_aus, wort::hideTestStatus},
                 {cmd_test_ein, wort::showTestStatus},
                 {WaitMeld, wort::oneMoment},
                 {barGoal, wort::barGoal},
                 {barFailed, wort::barFailed},
                 {tasten, keyTexts[exercise.isWritten() ? 1 : 0][exercise.sounds() ? 1 : 0]},
                 {cmdHilfe, wort::help}});
    CmdNextAufg.caption = Wort(wort::task) + " 1";
    LbNextAufg.caption = CmdNextAufg.caption();
    matboxanz.accessibleName = Wort(wort::trainingProgress);
}

void Worksheet::start_timer() {
    start.stop();
    setPointer(form::Pointer::Hourglass);
    abbruch_ = false;
    setCaption(p.katalog.typ_name[z.ueb_typ]);
    setCaptions();
    forms().show(name());

    run_.begin({.presentation = presentation_ ? engine::soundingTime(z) : 0}, p.ports.saat);
    field_->prepare();
    if (presentation_) presentation_->beginRun();
    if (z.uebungsmodus == core::modus::fortsetzung) kept_.resume();
    showMode();
    showStanding();

    setPointer(form::Pointer::Arrow);
    Uhrzeit.start();
    Uhr.caption = p.ports.loop.now().timeOfDay();
    const bool automatic = z.abfrage == 1;
    CmdNextAufg.visible = !automatic;
    CmdNextAufg.enabled = !automatic;
    LbNextAufg.visible = automatic;
    if (automatic) WahlAutomat.start();
    todo.caption = Wort(automatic       ? wort::firstTaskComes
                        : presentation_ ? wort::hearFirstTask
                                        : wort::seeFirstTask);
    turn(Turn::RunReady);
}

void Worksheet::showMode() {
    PicUetyp(0).visible = core::isTraining(z);
    PicUetyp(1).visible = core::isTest(z);
    for (const int i : {1, 2}) ergebnis_anz(i).visible = false;
    if (core::isTest(z)) showTestStanding(true);
}

/// Everything that the run says of itself in figures.
void Worksheet::showStanding() {
    const engine::Standing& standing = run_.standing();
    zaehler(0).caption = std::to_string(standing.counters.right);
    zaehler(1).caption = std::to_string(standing.counters.wrong);
    if (presentation_) presentation_->showRepetitions(standing.counters.repetitions);
    if (core::isTraining(z)) {
        const engine::TaskPool& pool = run_.pool();
        matboxanz.floodPercent = pool.percent();
        barStanding.caption =
            core::eingesetzt(Wort(wort::pointsToGoal), std::to_string(pool.matbox_zahl()),
                             std::to_string(pool.obergrenze()));
        matboxanz.hint = barStanding.caption();
    }
    if (core::isTest(z)) {
        stop_uhr.caption = Wort(wort::timeLeft) + std::to_string(standing.restZeit / 60) + " " +
                           Wort(wort::minutes) + std::to_string(standing.restZeit % 60) + " " +
                           Wort(wort::seconds);
        lab_aufgaben.caption = Wort(wort::tasksLeft) + " " + std::to_string(standing.restAufgaben);
    }
}

void Worksheet::showTestStanding(bool shown) {
    stop_uhr.visible = shown;
    lab_aufgaben.visible = shown;
    cmd_test_aus.visible = shown;
    cmd_test_ein.visible = !shown;
}

void Worksheet::MatWahl() {
    guard("MatWahl.", [this] {
        const engine::Task& a = run_.draw();
        red_ = false;
        showResult("", colours::green, colours::black);
        verdict.caption = "";
        if (presentation_) presentation_->beginTask();
        field_->show(a);
        turn(Turn::TaskDrawn);
        if (presentation_)
            presentation_->present();
        else
            allowAnswer();
    });
}

void Worksheet::listen() { todo.caption = Wort(wort::listen); }

void Worksheet::allowAnswer() {
    todo.caption = Wort(run_.exercise().isWritten() ? wort::putAccidentals : wort::whichScale);
    field_->open();
    run_.answerOpen(p.ports.loop.clock());
    turn(Turn::AnswerOpen);
}

void Worksheet::repeated() {
    run_.repeated(p.ports.loop.clock());
    showStanding();
}

void Worksheet::scoreAnswer(const engine::Answer& answer) {
    run_.score(answer, p.ports.loop.clock());
    if (answer.right)
        showRight();
    else
        showWrong();
    showStanding();
    field_->scored();
    turn(Turn::Answered);
    if (run_.aufgZustand() != TaskState::TryAgain) turn(Turn::Closed);
    afterAnswer();
}

void Worksheet::showResult(const std::string& text, base::Colour letters, base::Colour ground) {
    ergebnis.backColour = ground;
    ergebnis.foreColour = letters;
    ergebnis.accessibleName = verdict.caption() + " " + text;
    ergebnis.caption = text;
}

void Worksheet::showRight() {
    verdict.caption = Wort(wort::verdictRight);
    showResult(solution(), colours::green, colours::black);
}

/// Two wrong answers in a row make the field blink.
void Worksheet::showWrong() {
    red_ = !red_;
    const bool again = run_.aufgZustand() == TaskState::TryAgain;
    verdict.caption = again ? std::string() : Wort(wort::verdictSolution);
    showResult(again ? Wort(wort::wrong) : solution(), red_ ? colours::black : colours::red,
               red_ ? colours::red : colours::black);
}

/// The name of the scale that was asked for. Where the learner named it, with what it is half of,
/// or with its direction after a right answer.
std::string Worksheet::solution() const {
    const engine::Task& a = run_.task();
    const std::string& name = p.katalog.skal_name[z.skal_typ][a.skala_nr];
    const bool up = a.akt_richtung == 1;
    if (run_.exercise().isWritten()) return name;
    if (z.skal_typ == tetrachords && z.ska_ausw != 0)
        return name + p.katalog.tetra_name[a.skala_nr][up ? 0 : 1];
    if (run_.lastAnswer().right && z.abfolge == 0 && z.richtung == 2)
        return core::eingesetzt(p.Wort(wort::scaleWithDirection),
                                p.Wort(up ? wort::ascending : wort::descending), name);
    return name;
}

void Worksheet::afterAnswer() {
    switch (run_.aufgZustand()) {
        case TaskState::Closed:
            if (presentation_) presentation_->closeTask();
            Weiterschalter();
            break;
        case TaskState::Open:
        case TaskState::TryAgain:
            break;
        case TaskState::TrainingOver:
            ergebnis_anz(0).visible = false;
            ergebnis_anz(run_.goalReached() ? 1 : 2).visible = true;
            CmdNextAufg.enabled = false;
            if (presentation_) presentation_->endRun(true);
            offerWayOn();
            setPointer(form::Pointer::Hourglass);
            kept_.discard();
            setPointer(form::Pointer::Arrow);
            turn(Turn::RunEnded);
            break;
        case TaskState::ExamOver:
            Uhrzeit.stop();
            CmdNextAufg.enabled = false;
            WahlAutomat.stop();
            if (presentation_) presentation_->endRun(false);
            offerWayOn();
            turn(Turn::RunEnded);
            break;
    }
}

void Worksheet::offerNext() {
    if (run_.aufgZustand() == TaskState::Closed) Weiterschalter();
}

void Worksheet::Weiterschalter() {
    if (z.abfrage == 1) {
        LbNextAufg.caption = Wort(wort::nextTask);
        LbNextAufg.visible = true;
        WahlAutomat.start();
    } else {
        CmdNextAufg.caption = Wort(wort::nextTask);
        CmdNextAufg.enabled = true;
    }
}

void Worksheet::withdrawNext() {
    WahlAutomat.stop();
    if (z.abfrage == 1)
        LbNextAufg.visible = false;
    else
        CmdNextAufg.enabled = false;
}

/// The way out becomes the way on.
void Worksheet::offerWayOn() {
    zurueck.backColour = colours::yellow;
    zurueck.caption = Wort(wort::goOn);
    zurueck.foreColour = colours::red;
}

bool Worksheet::key(form::Key key) {
    using enum form::Key::Kind;
    if (field_->key(key)) return true;
    switch (key.kind) {
        case Space:
            if (presentation_) presentation_->repeat();
            return true;
        case Enter:
            if (run_.ended())
                zurueck.click();
            else
                CmdNextAufg.click();
            return true;
        case Escape:
            breakOff();
            return true;
        case Digit:
            return false;
        case Help:
            break;
    }
    return Formular::key(key);
}

void Worksheet::Uhrzeit_timer() {
    Uhr.caption = p.ports.loop.now().timeOfDay();
    if (!core::isTest(z)) return;
    timeUp_ = !run_.tenSecondsPassed();
    showStanding();
    turn(Turn::Clock);
    if (!timeUp_) return;
    Uhrzeit.stop();
    if (!asking_) endByTime();
}

void Worksheet::endByTime() {
    if (leaving_) return;
    leaving_ = true;
    stopAll();
    turn(Turn::RunEnded);
    saveRecord();
    showResultForm();
    returnToSetUp();
}

/// From here on nothing goes on by itself.
void Worksheet::stopAll() {
    zurueck.enabled = false;
    abbruch_ = true;
    for (form::Timer* timer : {&Uhrzeit, &WahlAutomat, &start}) timer->stop();
    CmdNextAufg.enabled = false;
    field_->close();
    if (presentation_) presentation_->leave();
}

void Worksheet::unloading() {
    if (leaving_) return;
    leaving_ = true;
    stopAll();
}

/// The key and the close box that leave do not end a test or an exam by mistake.
void Worksheet::breakOff() {
    const bool asks = core::isTest(z) && begun_ && !run_.ended();
    if (!asks) return zurueck.click();
    asking_ = true;
    const bool leaves =
        p.ports.dialogs.confirm(p.katalog.modus_name[z.uebungsmodus], Wort(wort::breakOffQuestion));
    asking_ = false;
    if (timeUp_) return endByTime();
    if (leaves) zurueck.click();
}

void Worksheet::zurueck_click() {
    if (leaving_) return;
    leaving_ = true;
    stopAll();
    if (run_.ended()) {
        zurueck.backColour = colours::magenta;
        zurueck.caption = Wort(wort::back);
        zurueck.foreColour = colours::black;
        showResultForm();
    } else {
        turn(Turn::RunEnded);
        guard("zurueck_click.", [this] { offerSaving(); });
    }
    saveRecord();
    returnToSetUp();
}

void Worksheet::offerSaving() {
    if (failed_ || !run_.mayBeKept()) return;
    if (!p.ports.dialogs.askYesNo(Wort(wort::saveTraining), Wort(wort::saveTrainingQuestion)))
        return;
    setPointer(form::Pointer::Hourglass);
    kept_.keep();
    setPointer(form::Pointer::Arrow);
}

/// The worksheet stays until the result has come.
void Worksheet::showResultForm() {
    constexpr auto formular = "testergebnis";
    guard("ErgebnisZeigen.", [this] {
        forms().hide(formular);
        midi_.Delay(300);
        form::Form& form = forms().load(formular);
        const form::Connection shown = form.changed.connect([&] {
            if (form.visible()) forms().hide(name());
        });
        forms().runModal(formular);
    });
}

/// A record that cannot be written must not keep the learner here: the fault is told, the way goes
/// on.
void Worksheet::saveRecord() {
    guard("SkalaXmlSichern.", [this] {
        setEnabled(false);
        WaitMeldung.visible = true;
        p.ports.loop.doEvents();
        xml_.SkalaXmlSichern(z.einst_liste);
    });
    WaitMeldung.visible = false;
}

void Worksheet::returnToSetUp() {
    const std::string setUp = core::setUpForm(z.theoriewahl);
    if (forms().loaded(setUp)) forms().show(setUp);
    forms().unload("testergebnis");
    forms().unload(name());
}

/// A run that cannot go on is left; anything else that fails is told, and the run goes on.
void Worksheet::nachFehler(const std::string& prozedur) {
    constexpr std::array<std::string_view, 5> essential{
        "start_timer.", "spieltimer_timer.", "skal_antw_click.", "MatWahl.", "cmdOK_click."};
    if (std::ranges::find(essential, prozedur) == essential.end()) return;
    failed_ = true;
    if (prozedur == essential.front() && z.uebungsmodus == core::modus::fortsetzung)
        kept_.withdraw();
    zurueck_click();
}

}  // namespace worksheets
