#pragma once
#include "engine/arbeitsblatt.h"
#include "engine/vorfuehrung.h"
#include "form/controls.h"

namespace engine {

/// A task that sounds: queued as a whole with its tuning, played once, and again when the learner
/// asks. Its controls stand on the worksheet.
class KlangVorfuehrung final : public Vorfuehrung {
  public:
    KlangVorfuehrung(Arbeitsblatt& blatt, core::Programm& programm, sound::Midi& midi,
                     const Aufgabe& aufgabe, form::Control& bereich);

    void LaufBeginn() override;
    int dauer() const override { return spieltimer.interval(); }
    void AufgabeBeginnt() override;
    void Vorfuehren() override;
    void Wiederholen() override;
    void AufgabeGeschlossen() override;
    void LaufBeendet(bool kontrolle) override;
    void Verlassen() override;
    int wiederholungen() const override;
    void WiederholungenSetzen(int anzahl) override { whlgzaehler.caption = std::to_string(anzahl); }

  private:
    /// What the running playback is.
    enum class SpielArt { Aufgabe, Wiederholung, Kontrolle };

    void spieltimer_timer();
    void wieder_click();
    void wieder2_click();
    /// Queues the task and starts it; does not wait for its end.
    void AufgabeSpielen();
    void FeinVerstimmen();
    /// Index into noten of what sounds at a position.
    int tonAn(int position) const;
    void wieder2Anbieten();

    Arbeitsblatt& blatt_;
    core::Programm& p;
    core::Zustand& z;
    sound::Midi& midi_;
    const Aufgabe& a;
    SpielArt spielArt_ = SpielArt::Aufgabe;
    i16 feinVerstimmung_;  ///< detune of the task in bend steps, -15..15
    i16 feinVorzeichen_ = 1;

    form::Panel wieder, wieder2;
    form::Label whlgzaehler, whlgzaehler_lb;
    form::Timer spieltimer;
};

}  // namespace engine
