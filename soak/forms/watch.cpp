#include "forms/watch.h"

#include "base/rounding.h"

#include <pugixml.hpp>

#include <filesystem>

namespace soak {

namespace {

/// Milliseconds for which no form may be seen: between two of them there is a short wait.
constexpr std::int64_t darkness = 3000;

std::string caption(const form::Form& form, const char* name, int index = form::Place::noIndex) {
    const form::Control* control = form.find(name, index);
    return control ? control->caption() : std::string();
}

}  // namespace

Watch::Watch(drill::Drill& drill, const form::VirtualTime& loop, Tally& tally, bool records)
    : drill_(drill), loop_(loop), tally_(tally), records_(records) {
    form::Forms& forms = drill.programm.forms;
    made_ = forms.made.connect([this](form::Form& form) { made(form); });
    gone_ = forms.gone.connect([this](form::Form& form) { gone(form); });
    empty_ = forms.empty.connect([this] { ended_ = true; });
}

void Watch::made(form::Form& form) {
    ++tally_.forms[form.name()];
    tally_.law(!ended_, form.name() + " comes after the end");
    if (form.name() == "testergebnis")
        tally_.law(sheet_ && ++results_ == 1, "one result to a run, and none without");
    auto* sheet = dynamic_cast<worksheets::Worksheet*>(&form);
    if (!sheet) return;
    tally_.law(sheet_ == nullptr, "two worksheets at a time");
    sheet_ = sheet;
    ready_ = excused_ = false;
    results_ = 0;
    turns_ = sheet->turn.connect([this](Turn now) { turn(now); });
}

void Watch::gone(form::Form& form) {
    if (&form != sheet_) return;
    if (ready_) record();
    sheet_ = nullptr;
    turns_ = {};
}

void Watch::turn(Turn turn) {
    switch (turn) {
        case Turn::RunReady:
            ready_ = true;
            right_ = base::leadingInt(caption(*sheet_, "zaehler", 0));
            wrong_ = base::leadingInt(caption(*sheet_, "zaehler", 1));
            tasks_ = closed_ = answers_ = clocks_ = 0;
            seconds_ = sheet_->run().standing().restZeit;
            ++tally_.reached["mode " + std::to_string(int(z.uebungsmodus))];
            tally_.law((right_ == 0 && wrong_ == 0) || z.uebungsmodus == core::modus::fortsetzung,
                       "a new run begins with its counters at 0");
            break;
        case Turn::TaskDrawn:
            ++tasks_;
            ++tally_.reached["tasks"];
            tally_.law(sheet_->run().task().skala_nr <= z.skal_anz, "a scale of the category");
            break;
        case Turn::Answered:
            ++answers_;
            ++(sheet_->run().lastAnswer().right ? right_ : wrong_);
            ++tally_.reached["answers"];
            break;
        case Turn::Closed:
            ++closed_;
            ++tally_.reached["tasks closed"];
            break;
        case Turn::Clock:
            ++clocks_;
            break;
        case Turn::AnswerOpen:
            break;
        case Turn::RunEnded:
            ++tally_.reached["runs"];
            break;
    }
}

void Watch::look() {
    if (!tally_.broken.empty()) return;
    const form::Forms& forms = drill_.programm.forms;
    bool seen = false;
    for (const char* name : {"grd_einst", "einstellung1", "einstellung1b", "arbeitsblatt1",
                             "arbeitsblatt1b", "arbeitsblatt4", "arbeitsblatt4b", "testergebnis"})
        if (const form::Form* form = forms.loaded(name)) seen = seen || form->visible();
    if (seen || ended_) seen_ = loop_.elapsed();
    tally_.law(loop_.elapsed() - seen_ <= darkness, "no form can be seen");
    if (const auto* shown =
            dynamic_cast<const results::Testergebnis*>(forms.loaded("testergebnis")))
        if (shown->visible()) result(*shown);
}

void Watch::lookClosely() {
    look();
    if (ended_) tally_.law(drill_.programm.forms.last() == nullptr, "a form after the end");
    if (!sheet_ || !ready_ || excused_ || !tally_.broken.empty()) return;
    const auto counts = [&](int index, int count) {
        const std::string shown = caption(*sheet_, "zaehler", index);
        tally_.law(shown == std::to_string(count), "counter " + std::to_string(index) + " shows " +
                                                       shown + " after " + std::to_string(count));
    };
    counts(0, right_);
    counts(1, wrong_);
    tally_.law(closed_ <= tasks_ && tasks_ - closed_ <= 1, "one task at a time");
    const int bar = static_cast<const form::Panel*>(sheet_->find("matboxanz"))->floodPercent();
    tally_.law(bar >= 0 && bar <= 100, "the bar shows " + std::to_string(bar));
    const engine::Run& run = sheet_->run();
    if (core::isTraining(z) && run.aufgZustand() != engine::TaskState::TrainingOver) {
        int sum = 0;
        for (int i = 1; i < z.mathaeufgk_box.rows(); ++i)
            sum += std::max(0, int(z.mathaeufgk_box(i, 1)));
        tally_.law(closed_ == 0 || sum == run.pool().matbox_zahl(),
                   "weights of " + std::to_string(sum) + ", shown as " +
                       std::to_string(int(run.pool().matbox_zahl())));
    }
    if (!core::isTest(z)) return;
    tally_.law(run.standing().restAufgaben == run.standing().pruefAufgaben - closed_,
               "tasks left in an exam");
    tally_.law(run.standing().restZeit == seconds_ - 10 * clocks_, "time left in an exam");
}

void Watch::result(const results::Testergebnis& form) {
    ++tally_.reached["looks at results"];
    std::vector<std::string> texts{form.gesamtText()};
    for (const auto& row : form.zeilen()) texts.push_back(row.prozent);
    for (const std::string& text : texts) {
        if (text == "0.0 %" || (texts.size() == 1 && text.empty())) continue;
        char* end = nullptr;
        const double share = std::strtod(text.c_str(), &end);
        tally_.law(std::string(end) == "%" && share >= 0 && share <= 100, "a share of " + text);
    }
}

/// What the run has left for the host.
void Watch::record() {
    if (!records_) return;
    const std::filesystem::path path = drill_.xml.datei();
    pugi::xml_document document;
    const auto read = document.load_file(path.c_str());
    tally_.law(bool(read), "record " + path.string() + ": " + read.description());
    int lessons = 0, answers = 0;
    for (const auto lesson : document.child("exercise").child("lessons")) {
        ++lessons;
        for (const auto answer : lesson.child("answers"))
            if (answer.find_child_by_attribute("key", "Antwort")) ++answers;
    }
    tally_.law(excused_ || (lessons == tasks_ && answers == answers_),
               "a record of " + std::to_string(lessons) + " lessons and " +
                   std::to_string(answers) + " answers after " + std::to_string(tasks_) +
                   " tasks and " + std::to_string(answers_) + " answers");
    ++tally_.reached["records"];
    std::error_code none;
    std::filesystem::remove(path, none);
}

}  // namespace soak
