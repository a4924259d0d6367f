#include "sim/pupil.h"

#include <array>
#include <stdexcept>
#include <string>

namespace sim {

using engine::TaskState;

namespace {

constexpr int maxAnswers = 10;
constexpr int glance = 5;  // milliseconds

template <class C>
C* control(const form::Form& form, const char* name, int index = form::Place::noIndex) {
    auto* found = dynamic_cast<C*>(form.find(name, index));
    if (!found) throw std::logic_error(form.name() + " has no " + name);
    return found;
}

}  // namespace

void Pupil::begin(worksheets::Worksheet& sheet, int limit) {
    sheet_ = &sheet;
    limit_ = limit;
    tasks_ = tries_ = rightFirst_ = 0;
    leftAtLimit_ = false;
    pictures_.clear();
    names_.clear();
    for (int i = 0; sheet.find("ton_art", i); ++i) {
        pictures_.push_back(control<form::Picture>(sheet, "ton_art", i));
        names_.push_back(control<form::Panel>(sheet, "tonart", i));
    }
    next_ = control<form::Button>(sheet, "CmdNextAufg");
    back_ = control<form::Panel>(sheet, "zurueck");
}

void Pupil::notice(worksheets::Worksheet::Turn turn) {
    using enum worksheets::Worksheet::Turn;
    switch (turn) {
        case RunReady:
            in(pause, [this] { goOn(); });
            break;
        case TaskDrawn:
            ++tasks_;
            tries_ = 0;
            break;
        case AnswerOpen:
            in(learner_.thinkingTime(), [this] { answer(); });
            break;
        case Answered:
            if (tries_++ == 0 && sheet_->run().lastAnswer().right) ++rightFirst_;
            if (sheet_->run().aufgZustand() == TaskState::TryAgain)
                in(learner_.thinkingTime(), [this] { answer(); });
            break;
        case Closed:
            in(pause, [this] { goOn(); });
            break;
        case Clock:
            break;
        case RunEnded:
            if (!sheet_->run().ended()) rest();
            break;
    }
}

void Pupil::answer() {
    if (sheet_->run().exercise().isWritten())
        write();
    else
        name();
}

void Pupil::write() {
    worksheets::Worksheet& sheet = *sheet_;
    auto* const done = control<form::Button>(sheet, "cmdOK");
    writeScale(sheet, learner_.writes({sheet_->run().task().skala_nr, tries_, {}}, chance_),
               chance_);
    // What was handed in once and stays as it is must be heard again before it can be handed in.
    if (done->usable()) return done->click();
    if (sheet.find("wieder")) return control<form::Panel>(sheet, "wieder")->click();
    while (!done->usable()) writeScale(sheet, Writing::Wrong, chance_);
    done->click();
}

void Pupil::name() {
    std::array<int, maxAnswers> open{};
    std::size_t count = 0;
    for (int i = 0; i < maxAnswers; ++i) {
        const auto at = static_cast<std::size_t>(i);
        if (pictures_[at]->usable() || names_[at]->usable()) open[count++] = i;
    }
    if (count == 0) return;
    const int choice =
        learner_.answer({sheet_->run().task().skala_nr, tries_, {open.data(), count}}, chance_);
    const auto at = static_cast<std::size_t>(choice);
    if (pictures_[at]->usable())
        pictures_[at]->click();
    else
        names_[at]->click();
}

void Pupil::goOn() {
    leftAtLimit_ = !sheet_->run().ended() && tasks_ >= limit_;
    if (sheet_->run().ended() || leftAtLimit_)
        back_->click();
    else
        next_->click();
}

void Pupil::readResult(form::Form& result, std::function<void()> read) {
    in(glance, [this, &result, read = std::move(read)] {
        auto* const button = control<form::Button>(result, "cmdOK");
        if (!result.visible() || !button->usable()) return readResult(result, read);
        read();
        button->click();
    });
}

}  // namespace sim
