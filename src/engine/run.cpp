#include "engine/run.h"

#include "base/rounding.h"
#include "engine/scoring.h"

#include <algorithm>

namespace engine {

Run::Run(core::Zustand& zustand, base::Rnd& rnd, results::Wertung& wertung,
         const Exercise& exercise, RunRecorder* recorder)
    : z(zustand),
      rnd_(rnd),
      wertung_(wertung),
      exercise_(exercise),
      recorder_(recorder),
      pool_(zustand, wertung, rnd, exercise.isWritten()),
      choice_(zustand, rnd, pool_, exercise.tonality) {}

void Run::begin(TaskDuration dauer, const std::function<std::int64_t()>& seed) {
    const bool numbered = z.uebungsmodus == core::modus::pruefung && z.zufallsNr != 0;
    rnd_.restart(numbered ? -int(z.zufallsNr) : seed());
    wertung_.auswertung.Clear();
    wertung_.ergebnis_best.Clear();
    wertung_.wrongAnswers = 0;
    choice_.beginRun();
    ton_anz_akt_ = wrongAnswersAllowed(z, exercise_);
    z.bewertung_basis = static_cast<float>(ton_anz_akt_) * 0.5F;
    if (z.uebungsmodus == core::modus::training) pool_.beginTraining();
    if (core::isTest(z)) beginExam(dauer);
}

void Run::beginExam(TaskDuration dauer) {
    dauer.zeit_faktor = exercise_.zeit_faktor;
    const ExamPlan plan = planExam(dauer, pool_.potSkala());
    standing_.pruefAufgaben = standing_.restAufgaben = plan.pruefAufgaben;
    standing_.restZeit = plan.restZeit;
    z.bestAnz = plan.shortened ? 3 : 4;
    pool_.beginExam(plan.pruefAufgaben / 2);
}

void Run::resume(const core::Value& record) {
    standing_.counters = readTraining(record, pool_.potSkala(), z, wertung_.auswertung);
    wertung_.wrongAnswers = standing_.counters.wrong;
    pool_.resumeTraining();
}

core::Value::Array Run::save() const {
    return writeTraining(z, pool_.potSkala(), wertung_.auswertung, standing_.counters);
}

const Task& Run::draw() {
    const Task& a = choice_.draw();
    if (recorder_) recorder_->task(a);
    return a;
}

void Run::repeated(float clock) {
    Attempt& v = choice_.attempt();
    v.zeit.pause(clock);
    v.whlgAnz += 1;
    v.whlg_anz += 1;
    ++standing_.counters.repetitions;
}

TaskState Run::score(Answer answer, float clock) {
    answer.dauer = task().attempt.zeit.tenths(clock);
    answer.whlg_anz = task().attempt.whlg_anz;
    lastAnswer_ = answer;
    if (recorder_) recorder_->answer(task(), answer);
    if (answer.right)
        rightAnswer();
    else
        wrongAnswer(clock);
    return aufgZustand_;
}

void Run::rightAnswer() {
    Attempt& v = choice_.attempt();
    ++standing_.counters.right;
    if (v.wrongAnswers == 0 && core::isScored(z)) {
        const Task& a = task();
        const int zeichen = exercise_.isWritten()
                                ? int(accidentalCount(a.quintLage, TonalityChoice::stufenQz(
                                                                       z.skal_typ, a.skala_nr)))
                                : 1;
        v.zeit_malus = ZeitStrafeBerechnen(lastAnswer_.dauer, exercise_.zeit_faktor * zeichen);
        v.punkte = rightAtOnce;
    }
    AufgabeAbschliessen();
}

void Run::wrongAnswer(float clock) {
    Attempt& v = choice_.attempt();
    wertung_.wrongAnswers = ++standing_.counters.wrong;
    v.wrongAnswers += 1;
    v.punkte += 2;
    if (!exercise_.isWritten())
        v.FalschSkala[v.wrongAnswers] = confusedCode(z, lastAnswer_.index, task().code());
    if (v.wrongAnswers == ton_anz_akt_) return AufgabeAbschliessen();
    aufgZustand_ = TaskState::TryAgain;
    v.whlg_anz = 0;
    v.zeit.startOver(clock);
    v.antwort_nr += 1;
    if (recorder_) recorder_->anotherTry(v.antwort_nr);
}

void Run::AufgabeAbschliessen() {
    aufgZustand_ = TaskState::Closed;
    if (core::isScored(z)) standing_.score = FortschrittWerten();
    if (core::isTraining(z)) continueTraining();
    if (core::isTest(z)) continueExam();
    if (aufgZustand_ == TaskState::Closed) standing_.schalter_frei = true;
}

/// Books the task in hand and, in training, changes the weights. @return its points before booking.
float Run::FortschrittWerten() {
    Attempt& v = choice_.attempt();
    const i16 code = task().code();
    const auto repeated = static_cast<float>(v.whlgAnz);
    float w = 0;
    if (v.punkte == rightAtOnce) {
        // Every repetition and every tenth of penalty eats into the credit.
        v.punkte = std::min(0.0F, repeated + v.punkte + v.zeit_malus);
        w = z.bewertung_basis * v.punkte;
    } else if (v.punkte > 0) {
        v.punkte = std::min(v.punkte + repeated, static_cast<float>(2 * ton_anz_akt_));
        w = v.punkte;
    }
    wertung_.ErgebnisBuchen(core::skalaSlot(code, z.skal_anz), w);

    if (core::isTest(z) || v.punkte == 0) return w;
    pool_.addWeight(code, base::roundedI16(static_cast<double>(v.punkte)));
    if (v.punkte <= 0) return w;
    // What was confused with the right scale comes up more often too.
    for (int k = 1; k <= ton_anz_akt_; ++k)
        if (v.FalschSkala[k] != 0) pool_.addWeight(v.FalschSkala[k], 1);
    return w;
}

void Run::continueTraining() {
    if (pool_.update() != TaskPool::TrainingState::GoesOn) aufgZustand_ = TaskState::TrainingOver;
}

void Run::continueExam() {
    standing_.restAufgaben -= 1;
    if (standing_.restAufgaben == 0)
        aufgZustand_ = TaskState::ExamOver;
    else if (standing_.pruefAufgaben / 2 == standing_.restAufgaben)
        pool_.MatFuellen();
}

bool Run::tenSecondsPassed() {
    standing_.restZeit -= 10;
    return standing_.restZeit > 0;
}

}  // namespace engine
