#pragma once
#include "core/value.h"
#include "engine/aufgabenwahl.h"
#include "engine/protokoll.h"
#include "engine/pruefung.h"
#include "engine/trainingsstand.h"

#include <functional>

namespace engine {

/// What an answer has led to.
enum class AufgZustand {
    Offen = 0,
    Geschlossen = 1,
    Weiter = 3,
    TrainingBeendet = 4,
    PruefungBeendet = 5
};

/// What of a run a learner is shown.
struct Stand {
    Zaehlerstand zaehler;
    i16 pruefAufgaben;           ///< tasks of a test or exam
    i16 restAufgaben;            ///< those to come
    i16 restZeit;                ///< seconds left
    bool schalter_frei = false;  ///< a task was closed, and there is a next one
    float wertung = 0;           ///< points of the task closed last, before they are booked
};

/// One run of an exercise, from its beginning to its end: which task comes next, what an answer is
/// worth, and where the run stands. It knows no form, no sound and no clock: the same seed and the
/// same answers give the same run. Clock readings are in seconds.
class Lauf {
  public:
    /// @param protokoll may be nullptr: then nothing is written down.
    Lauf(core::Zustand& zustand, base::Rnd& rnd, results::Wertung& wertung, const Uebung& uebung,
         Protokoll* protokoll = nullptr);

    /// Begins a run as the state says; a training that is continued still needs its weights.
    /// @param dauer of a task, without the free answer time, which the run knows.
    /// @param saat asked for a seed, unless the run is an exam with a number: it repeats its tasks.
    /// @throws run-time error 5 for a run that could draw only one and the same task.
    void beginnen(Aufgabendauer dauer, const std::function<std::int64_t()>& saat);
    /// Takes up a training where it was left. @throws run-time errors 5, 6, 9 and 13 for what does
    /// not fit the run as it was set up, and changes nothing then.
    void aufnehmen(const core::Value& satz);
    /// A training as it stands, to be taken up again.
    core::Value::Array sichern() const;

    /// Draws the next task.
    const Aufgabe& ziehen();
    /// The learner may answer.
    void antwortOffen(float uhr) { wahl_.verlauf().zeit.laeuft(uhr); }
    /// The open task is heard once more.
    void wiederholt(float uhr);
    /// Scores an answer: the one road of all answers.
    AufgZustand werten(Antwort antwort, float uhr);
    /// Ten seconds of a test or exam have passed. @return false when its time is over.
    bool zehnSekundenUm();

    const Uebung& uebung() const { return uebung_; }
    const Aufgabe& aufgabe() const { return wahl_.aufgabe(); }
    const Antwort& letzteAntwort() const { return letzteAntwort_; }
    AufgZustand aufgZustand() const { return aufgZustand_; }
    /// A training has ended, or a test or exam has no tasks left.
    bool zuEnde() const {
        return aufgZustand_ == AufgZustand::TrainingBeendet ||
               aufgZustand_ == AufgZustand::PruefungBeendet;
    }
    /// Of a training that has ended: its goal was reached.
    bool zielErreicht() const { return matbox_.matbox_zahl() == 0; }
    const Stand& stand() const { return stand_; }
    const Matbox& matbox() const { return matbox_; }

  private:
    void pruefungBeginnen(Aufgabendauer dauer);
    void richtigeAntwort();
    void falscheAntwort(float uhr);
    void AufgabeAbschliessen();
    float FortschrittWerten();
    void trainingWeiter();
    void pruefungWeiter();

    core::Zustand& z;
    base::Rnd& rnd_;
    results::Wertung& wertung_;
    const Uebung& uebung_;
    Protokoll* protokoll_;
    Matbox matbox_;
    Aufgabenwahl wahl_;
    Stand stand_;
    Antwort letzteAntwort_;
    AufgZustand aufgZustand_ = AufgZustand::Offen;
    i16 ton_anz_akt_;  ///< wrong answers that a task allows
};

}  // namespace engine
