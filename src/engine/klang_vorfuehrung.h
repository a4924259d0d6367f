#pragma once
#include "engine/arbeitsblatt.h"
#include "engine/vorfuehrung.h"
#include "form/controls.h"

#include <functional>
#include <memory>

namespace engine {

/// A task that sounds: queued as a whole with its tuning, played once, and again when the learner
/// asks. Its controls stand on the worksheet.
class KlangVorfuehrung final : public Vorfuehrung {
  public:
    KlangVorfuehrung(Arbeitsblatt& blatt, core::Programm& programm, sound::Midi& midi,
                     const Aufgabe& aufgabe, form::Control& bereich);

    /// MIDI numbers that the learner wrote, in the order in which they sound.
    using Fassung = base::FixedArray<i16, 9>;
    /// Adds a control that plays, after a task was closed, the learner's own version of it.
    void EigeneFassungAnbieten(std::function<Fassung()> fassung);

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
    /// Queues the task and starts it; does not wait for its end.
    /// @param eigene what is heard in place of the task's notes, nullptr for these.
    void AufgabeSpielen(const Fassung* eigene = nullptr);
    void KontrolleSpielen(const Fassung* eigene);
    void FeinVerstimmen();
    /// Index into noten of what sounds at a position.
    int tonAn(int position) const;
    void kontrolleAnbieten();
    void kontrolleErlauben(bool erlaubt);

    Arbeitsblatt& blatt_;
    core::Programm& p;
    core::Zustand& z;
    sound::Midi& midi_;
    const Aufgabe& a;
    SpielArt spielArt_ = SpielArt::Aufgabe;
    i16 feinVerstimmung_;  ///< detune of the task in bend steps, -15..15
    i16 feinVorzeichen_ = 1;

    std::function<Fassung()> fassung_;
    form::Panel wieder, wieder2;
    std::unique_ptr<form::Panel> eigene;
    form::Label whlgzaehler, whlgzaehler_lb;
    form::Timer spieltimer;
};

}  // namespace engine
