#include "sim/bare_runs.h"

#include "base/runtime_error.h"
#include "sim/seeds.h"
#include "sim/usage_error.h"

#include <algorithm>
#include <span>

namespace sim {

namespace {

using engine::TaskState;

/// What the options ask for that a bare run has not. @throws UsageError
void refuse(const Options& options) {
    const auto needsForms = [](bool asked, const char* option) {
        if (asked) throw UsageError(std::string("--bare has no ") + option);
    };
    needsForms(!options.trace.empty(), "trace: --trace needs the forms");
    needsForms(!options.record.empty(), "record: --record needs the forms");
    needsForms(!options.words.empty(), "words: --words needs the forms");
    needsForms(options.throughSetup, "forms to go through: --through-setup");
}

}  // namespace

BareRuns::BareRuns(const Options& options, engine::RunRecorder* protocol)
    : options_((refuse(options), options)),
      exercise_(exercise(options.form)),
      state_(exerciseState(options)),
      protocol_(protocol),
      seeds_(seeds(options.seed)),
      learnersChance_(learnersSeed(options.seed)),
      time_(static_cast<float>(options.learner.thinkingTime()) / 1000) {}

Outcome BareRuns::run() {
    Outcome outcome;
    z_ = state_;
    if (!saved_.isEmpty()) z_.uebungsmodus = core::modus::fortsetzung;
    scores_.vorbereiten();
    engine::Run run(z_, rnd_, scores_, exercise_, protocol_);
    const int limit = options_.tasks == 0 ? endless : options_.tasks;
    try {
        begin(run);
        while (!run.ended() && outcome.tasks < limit) {
            run.draw();
            ++outcome.tasks;
            outcome.rightFirst += task(run) ? 1 : 0;
        }
        const Ending left = options_.tasks == 0 ? Ending::Endless : Ending::Left;
        outcome.ending = endingOf(run).value_or(left);
    } catch (const base::RuntimeError& fault) {
        outcome.fault = fault.what();
    }
    outcome.weigh(run, z_);
    const bool keeps = options_.keep && outcome.ending == Ending::Left && run.mayBeKept();
    saved_ = keeps ? core::Value(run.save()) : core::Value();
    return outcome;
}

void BareRuns::begin(engine::Run& run) {
    run.begin({.presentation = exercise_.sounds() ? engine::soundingTime(z_) : 0}, seeds_);
    if (!saved_.isEmpty()) run.resume(saved_);
}

/// Answers the task until it is closed. @return whether it was right at once.
bool BareRuns::task(engine::Run& run) {
    openCount_ = 0;
    for (int scale = 0; scale <= z_.skal_anz; ++scale)
        if (core::isOffered(z_, scale)) base::at(open_, openCount_++) = scale;
    standing_ = {};
    handedIn_ = false;
    clock_ = 0;
    run.answerOpen(clock_);
    bool rightFirst = false;
    TaskState state = TaskState::TryAgain;
    for (int tries = 0; state == TaskState::TryAgain; ++tries) {
        think();
        const engine::Answer answer =
            exercise_.isWritten() ? written(run, tries) : named(run, tries);
        rightFirst = tries == 0 && answer.right;
        state = run.score(answer, clock_);
    }
    return rightFirst;
}

/// A wrong answer cannot be given again.
engine::Answer BareRuns::named(const engine::Run& run, int tries) {
    const engine::Task& a = run.task();
    const auto open = std::span(open_).first(static_cast<std::size_t>(openCount_));
    const int scale = options_.learner.answer({a.skala_nr, tries, open}, learnersChance_);
    openCount_ = static_cast<int>(std::remove(open.begin(), open.end(), scale) - open.begin());
    return engine::namedAnswer(a, scale);
}

/// What was handed in once is heard again before it is handed in as it stands, or is changed where
/// nothing sounds.
engine::Answer BareRuns::written(engine::Run& run, int tries) {
    const engine::Task& a = run.task();
    const auto write = [&](Writing how) {
        const Accidentals wanted = accidentals(a, how, learnersChance_);
        if (wanted != standing_) handedIn_ = false;
        standing_ = wanted;
    };
    const auto asItDoes = [&] {
        write(options_.learner.writes({a.skala_nr, tries, {}}, learnersChance_));
    };
    asItDoes();
    while (handedIn_ && !exercise_.sounds()) write(Writing::Wrong);
    while (handedIn_) {
        run.repeated(clock_);
        handedIn_ = false;
        run.answerOpen(clock_);
        think();
        asItDoes();
    }
    handedIn_ = true;
    return engine::writtenAnswer(a, [&](int place) {
        const core::Pitch letter = core::withoutAccidental(a.pitchAt(place));
        const int accidental = base::at(standing_, place);
        return core::Pitch{letter.midi + accidental, letter.qz + 7 * accidental};
    });
}

}  // namespace sim
