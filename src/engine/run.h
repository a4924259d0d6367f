#pragma once
#include "core/value.h"
#include "engine/exam_plan.h"
#include "engine/run_recorder.h"
#include "engine/saved_training.h"
#include "engine/task_choice.h"

#include <functional>

namespace engine {

/// What an answer has led to.
enum class TaskState { Open = 0, Closed = 1, TryAgain = 3, TrainingOver = 4, ExamOver = 5 };

/// What of a run a learner is shown.
struct Standing {
    Counters counters;
    i16 pruefAufgaben;           ///< tasks of a test or exam
    i16 restAufgaben;            ///< those to come
    i16 restZeit;                ///< seconds left
    bool schalter_frei = false;  ///< a task was closed, and there is a next one
    float score = 0;             ///< points of the task closed last, before they are booked
};

/// One run of an exercise, from its beginning to its end: which task comes next, what an answer is
/// worth, and where the run stands. It knows no form, no sound and no clock: the same seed and the
/// same answers give the same run. Clock readings are in seconds.
class Run {
  public:
    /// @param recorder may be nullptr: then nothing is written down.
    Run(core::Zustand& zustand, base::Rnd& rnd, results::Wertung& wertung, const Exercise& exercise,
        RunRecorder* recorder = nullptr);

    /// Begins a run as the state says; a training that is continued still needs its weights.
    /// @param dauer of a task, without the free answer time, which the run knows.
    /// @param seed asked for a seed, unless the run is an exam with a number: it repeats its tasks.
    /// @throws run-time error 5 for a run that could draw only one and the same task.
    void begin(TaskDuration dauer, const std::function<std::int64_t()>& seed);
    /// Takes up a training where it was left. @throws run-time errors 5, 6, 9 and 13 for what does
    /// not fit the run as it was set up, and changes nothing then.
    void resume(const core::Value& record);
    /// A training as it stands, to be taken up again.
    core::Value::Array save() const;

    /// Draws the next task.
    const Task& draw();
    /// The learner may answer.
    void answerOpen(float clock) { choice_.attempt().zeit.start(clock); }
    /// The open task is heard once more.
    void repeated(float clock);
    /// Scores an answer: the one road of all answers.
    TaskState score(Answer answer, float clock);
    /// Ten seconds of a test or exam have passed. @return false when its time is over.
    bool tenSecondsPassed();

    const Exercise& exercise() const { return exercise_; }
    const Task& task() const { return choice_.task(); }
    const Answer& lastAnswer() const { return lastAnswer_; }
    TaskState aufgZustand() const { return aufgZustand_; }
    /// A training has ended, or a test or exam has no tasks left.
    bool ended() const {
        return aufgZustand_ == TaskState::TrainingOver || aufgZustand_ == TaskState::ExamOver;
    }
    /// Of a training that has ended: its goal was reached.
    bool goalReached() const { return pool_.matbox_zahl() == 0; }
    /// A training in which a task was closed may be kept, to be gone on with another day.
    bool mayBeKept() const { return core::isTraining(z) && standing_.schalter_frei; }
    const Standing& standing() const { return standing_; }
    const TaskPool& pool() const { return pool_; }

  private:
    void beginExam(TaskDuration dauer);
    void rightAnswer();
    void wrongAnswer(float clock);
    void AufgabeAbschliessen();
    float FortschrittWerten();
    void continueTraining();
    void continueExam();

    core::Zustand& z;
    base::Rnd& rnd_;
    results::Wertung& wertung_;
    const Exercise& exercise_;
    RunRecorder* recorder_;
    TaskPool pool_;
    TaskChoice choice_;
    Standing standing_;
    Answer lastAnswer_;
    TaskState aufgZustand_ = TaskState::Open;
    i16 ton_anz_akt_;  ///< wrong answers that a task allows
};

}  // namespace engine
