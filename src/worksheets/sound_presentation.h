#pragma once
#include "core/programm.h"
#include "engine/task.h"
#include "form/controls.h"
#include "sound/midi.h"

#include <functional>
#include <memory>

namespace worksheets {

using base::i16;

class Worksheet;

/// A task that sounds: queued as a whole with its tuning, played once, and again when the learner
/// asks. A part of a worksheet that tells it when answers may come.
class SoundPresentation final {
  public:
    SoundPresentation(Worksheet& worksheet, core::Programm& programm, sound::Midi& midi,
                      form::Control& area);

    /// MIDI numbers that the learner wrote, in the order in which they sound.
    using Version = base::FixedArray<i16, 9>;
    /// Adds a control that plays, after a task was closed, the learner's own version of it.
    void offerOwnVersion(std::function<Version()> version);

    void beginRun();
    /// A task was drawn: everything of the task before is taken back.
    void beginTask();
    void present();
    /// The same task once more, while it is open or after it was closed.
    void repeat();
    void showRepetitions(int count) { whlgzaehler.caption = std::to_string(count); }
    void closeTask();
    /// @param review the last task may still be repeated.
    void endRun(bool review);
    /// The form is being left: nothing goes on, nothing sounds.
    void leave();

  private:
    /// What the running playback is.
    enum class Playback { Task, Repetition, Review };

    void spieltimer_timer();
    void wieder_click();
    /// Silence, and a breath. @return false when the form is being left meanwhile.
    bool fallSilent();
    /// Queues the task and starts it; does not wait for its end.
    /// @param ownNotes what is heard in place of the task's notes, nullptr for these.
    void AufgabeSpielen(const Version* ownNotes = nullptr);
    void playReview(const Version* ownNotes);
    void FeinVerstimmen();
    void offerReview();
    void allowReview(bool allowed);
    void showProblem();

    Worksheet& worksheet_;
    core::Programm& p;
    core::Zustand& z;
    sound::Midi& midi_;
    Playback spielArt_ = Playback::Task;
    i16 feinVerstimmung_;  ///< detune of the task in bend steps, -15..15
    i16 feinVorzeichen_ = 1;

    std::function<Version()> version_;
    form::Panel wieder, wieder2;
    std::unique_ptr<form::Panel> eigene;
    form::Label whlgzaehler, whlgzaehler_lb;
    /// Moves along the notes while they sound.
    form::Panel playMark;
    form::Label volumeLabel;
    form::Slider volume;
    /// Why nothing can be heard, and what to do.
    form::Label soundHint;
    form::Timer spieltimer;
};

}  // namespace worksheets
