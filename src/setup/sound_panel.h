#pragma once
#include "core/formular.h"
#include "setup/groups.h"
#include "sound/midi.h"

#include <functional>

namespace setup {

/// Instrument, tempo and volume, and the sound check: six notes through the very path that the
/// tasks use. In a branch without sound its controls are there, hidden, and do nothing.
class SoundPanel {
  public:
    /// @param ausgabe the form's MIDI control. @param abbruch the form is being left: ends waits.
    SoundPanel(core::Formular& form, core::Programm& programm, sound::Midi& midi,
               sound::MidiOutput& ausgabe, const Groups& groups, Zweig zweig, const bool& abbruch);

    /// A check begins, or has been closed.
    std::function<void(bool running)> onCheck;

    /// Opens the device, offers what can be chosen and chooses.
    void KlangEinrichten();
    /// Says of the instruments what they are worth in the range of notes that is chosen.
    void showFitness();
    /// Ends all sound.
    void silence();
    /// The device tells this form nothing more.
    void disconnect();
    /// The chosen instrument is going to be heard: from now on it is offered first.
    void rememberInstrument();
    void chooseTempo(int index);
    void openTempo();
    void lockTempo() { sperren(temp_Combo); }
    /// What was under way has been heard, or nobody will wait for its end.
    void checkEnded() { verklungen_ = !klang_contr.enabled(); }

  private:
    void ComboPatch_click();
    sound::Fitness fitness(int program) const;
    void HSliderVolume_change();
    void klang_contr_click();
    void QueueEmpty();
    void KlangKontrolleAbschliessen();
    void TonHinweisZeigen();

    core::Formular& form_;
    core::Programm& p;
    core::Zustand& z;
    sound::Midi& midi_;
    sound::MidiOutput& MIDI;
    Zweig zweig_;
    const bool& abbruch_;
    bool verklungen_ = false;  ///< a check has ended and was not closed yet
    form::Connection formularFort_, problemTold_, fitnessKnown_;

    form::Combo ComboPatch;
    form::ControlArray<form::Label> lb15;
    form::Combo temp_Combo;
    form::Picture pic15;
    form::Button klang_contr;
    form::ControlArray<form::Label> lb14;
    form::Slider HSliderVolume;
    /// Why nothing can be heard, and what to do.
    form::Label tonHinweis;
};

}  // namespace setup
