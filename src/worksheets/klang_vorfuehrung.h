#pragma once
#include "core/programm.h"
#include "engine/aufgabe.h"
#include "form/controls.h"
#include "sound/midi.h"

#include <functional>
#include <memory>

namespace worksheets {

using base::i16;

class Arbeitsblatt;

/// A task that sounds: queued as a whole with its tuning, played once, and again when the learner
/// asks. A part of a worksheet that tells it when answers may come.
class KlangVorfuehrung final {
  public:
    KlangVorfuehrung(Arbeitsblatt& blatt, core::Programm& programm, sound::Midi& midi,
                     form::Control& bereich);

    /// MIDI numbers that the learner wrote, in the order in which they sound.
    using Fassung = base::FixedArray<i16, 9>;
    /// Adds a control that plays, after a task was closed, the learner's own version of it.
    void EigeneFassungAnbieten(std::function<Fassung()> fassung);

    void LaufBeginn();
    /// Length of one presentation in the run as it is set up, milliseconds.
    int dauer() const;
    /// A task was drawn: everything of the task before is taken back.
    void AufgabeBeginnt();
    void Vorfuehren();
    /// The same task once more, while it is open or after it was closed.
    void Wiederholen();
    void WiederholungenZeigen(int anzahl) { whlgzaehler.caption = std::to_string(anzahl); }
    void AufgabeGeschlossen();
    /// @param kontrolle the last task may still be repeated.
    void LaufBeendet(bool kontrolle);
    /// The form is being left: nothing goes on, nothing sounds.
    void Verlassen();

  private:
    /// What the running playback is.
    enum class SpielArt { Aufgabe, Wiederholung, Kontrolle };

    void spieltimer_timer();
    void wieder_click();
    /// Silence, and a breath. @return false when the form is being left meanwhile.
    bool stillWerden();
    /// Queues the task and starts it; does not wait for its end.
    /// @param eigene what is heard in place of the task's notes, nullptr for these.
    void AufgabeSpielen(const Fassung* eigene = nullptr);
    void KontrolleSpielen(const Fassung* eigene);
    void FeinVerstimmen();
    void kontrolleAnbieten();
    void kontrolleErlauben(bool erlaubt);

    Arbeitsblatt& blatt_;
    core::Programm& p;
    core::Zustand& z;
    sound::Midi& midi_;
    SpielArt spielArt_ = SpielArt::Aufgabe;
    i16 feinVerstimmung_;  ///< detune of the task in bend steps, -15..15
    i16 feinVorzeichen_ = 1;

    std::function<Fassung()> fassung_;
    form::Panel wieder, wieder2;
    std::unique_ptr<form::Panel> eigene;
    form::Label whlgzaehler, whlgzaehler_lb;
    form::Timer spieltimer;
};

}  // namespace worksheets
