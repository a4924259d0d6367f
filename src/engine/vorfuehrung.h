#pragma once

namespace engine {

/// How a task is put before the learner: by sound, or by what stands on the form. The worksheet
/// calls it at the turns of a task; it calls back when the learner may answer.
class Vorfuehrung {
  public:
    virtual ~Vorfuehrung() = default;
    virtual void LaufBeginn() {}
    /// Length of one presentation in milliseconds, 0 where nothing sounds.
    virtual int dauer() const { return 0; }
    /// A task was drawn: everything of the task before is taken back.
    virtual void AufgabeBeginnt() {}
    /// Puts the task before the learner.
    virtual void Vorfuehren() = 0;
    /// The same task once more, while it is open or after it was closed.
    virtual void Wiederholen() {}
    virtual void AufgabeGeschlossen() {}
    /// @param kontrolle the last task may still be repeated.
    virtual void LaufBeendet(bool kontrolle) { (void)kontrolle; }
    /// The form is being left: nothing goes on, nothing sounds.
    virtual void Verlassen() {}
    /// Repetitions of the whole run.
    virtual int wiederholungen() const { return 0; }
    /// Takes them up again in a training that is continued.
    virtual void WiederholungenSetzen(int anzahl) { (void)anzahl; }
};

}  // namespace engine
