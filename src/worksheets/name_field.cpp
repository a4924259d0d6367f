#include "worksheets/name_field.h"

#include "core/wort.h"
#include "staff/ink.h"

namespace worksheets {

namespace wort = core::wort;

namespace {

constexpr base::Colour openColour = base::rgb(128, 255, 128);

}  // namespace

NameField::NameField(const FieldPlace& at)
    : AnswerField(at),
      tonarten(form_, {"tonarten", &at.area}),
      tonart(form_, "tonart", maxAnswers, &at.area),
      skal_pan(form_, "skal_pan", maxAnswers, &at.area),
      ton_art(form_, "ton_art", maxAnswers, &at.area),
      skal_bez(form_, "skal_bez", maxAnswers, &at.area),
      ziffer(form_, "ziffer", maxAnswers, &at.area) {
    for (int i = 0; i < maxAnswers; ++i) {
        const form::Handler answer{"skal_antw_click.", [this, i] { skal_antw(i); }};
        ton_art(i).onClick = answer;
        tonart(i).onClick = answer;
        // Closed from the first moment on, before the run is ready.
        ton_art(i).enabled = false;
        tonart(i).enabled = false;
    }
    if (run_.exercise().sounds()) return;
    view_ = std::make_unique<StaffView>(form_, p, at.area);
    schrittmarken = std::make_unique<form::Button>(form_, form::Place{"schrittmarken", &at.side});
    schrittmarken->enabled = false;
    schrittmarken->onClick = {"schrittmarken_click.", [this] {
                                  schrittmarken->enabled = false;
                                  view_->staff.paintSteps();
                              }};
}

void NameField::prepare() {
    const auto& kategorie = core::katalog::kategorie(z.skal_typ);
    const int basis = kategorie.bild_basis[z.final == 1 ? 0 : 1];
    const bool bilder = z.an_zeig == 0;
    tonarten.caption = p.katalog.skal_typ_name[z.skal_typ];
    int digit = 0;
    for (int i = 0; i < maxAnswers; ++i) {
        const bool offered = core::isOffered(z, i);
        if (i <= z.skal_anz) {
            const std::string& name = p.katalog.skal_name[z.skal_typ][i];
            skal_bez(i).caption = name;
            tonart(i).caption = name;
            ton_art(i).picture = basis + i;
        }
        tonart(i).visible = offered && !bilder;
        for (form::Control* c :
             std::initializer_list<form::Control*>{&skal_bez(i), &skal_pan(i), &ton_art(i)})
            c->visible = offered && bilder;
        ziffer(i).visible = offered;
        if (offered) ziffer(i).caption = std::to_string(++digit % 10);
    }
    closeAll();
    for (int i = 0; i <= z.skal_anz; ++i) judge(i, form::Verdict::None);
    if (!view_) return;
    form_.beschriften({{*schrittmarken, wort::stepMarks}});
    view_->prepare(kategorie.tonAnz, true);
}

void NameField::judge(int i, form::Verdict verdict) {
    tonart(i).verdict = verdict;
    skal_pan(i).verdict = verdict;
    const std::string words = inWords(i);
    tonart(i).accessibleName = words;
    ton_art(i).accessibleName = words;
}

std::string NameField::inWords(int i) const {
    std::string words = ziffer(i).caption() + " " + skal_bez(i).caption();
    switch (skal_pan(i).verdict()) {
        case form::Verdict::None:
            return words;
        case form::Verdict::Right:
            return words + ", " + p.Wort(wort::right);
        case form::Verdict::Wrong:
            return words + ", " + p.Wort(wort::wrong);
    }
    return words;
}

/// Where it stands on a staff, in the order in which it is to be read.
void NameField::show(const engine::Task& a) {
    for (int i = 0; i <= z.skal_anz; ++i)
        if (skal_pan(i).verdict() != form::Verdict::None) judge(i, form::Verdict::None);
    if (!view_) return;
    schrittmarken->enabled = false;
    view_->layOut(a, true);
    for (int c = 0; c < a.tonAnz; ++c) view_->staff.NoteSetzen(c, a.pitchAt(c), staff::ink::black);
}

void NameField::open(int i, bool open) {
    tonart(i).enabled = open;
    ton_art(i).enabled = open;
    skal_pan(i).backColour = open ? openColour : base::colours::red;
    ton_art(i).backColour = open ? openColour : base::colours::grey;
}

/// Those that were not tried on this task.
void NameField::open() {
    for (int i = 0; i < maxAnswers; ++i)
        if (core::isOffered(z, i) && !base::at(gesperrt_, i)) open(i, true);
}

void NameField::closeAll() {
    for (int i = 0; i < maxAnswers; ++i) open(i, false);
}

void NameField::close() {
    closeAll();
    if (leaving_ && schrittmarken) schrittmarken->enabled = false;
}

/// A wrong answer stays locked until the task is closed.
void NameField::scored() {
    const engine::Answer& answer = run_.lastAnswer();
    if (!answer.right) judge(answer.index, form::Verdict::Wrong);
    if (run_.aufgZustand() == engine::TaskState::TryAgain) {
        base::at(gesperrt_, answer.index) = true;
        open(answer.index, false);
        return;
    }
    judge(run_.task().skala_nr, form::Verdict::Right);
    gesperrt_.fill(false);
    closeAll();
    if (schrittmarken) schrittmarken->enabled = true;
}

void NameField::skal_antw(int Index) { give(engine::namedAnswer(run_.task(), Index)); }

bool NameField::key(form::Key key) {
    if (key.kind != form::Key::Kind::Digit) return false;
    const std::string digit = std::to_string(key.digit);
    for (int i = 0; i < maxAnswers; ++i)
        if (ziffer(i).visible() && ziffer(i).caption() == digit) {
            tonart(i).click();
            ton_art(i).click();
            return true;
        }
    return false;
}

}  // namespace worksheets
