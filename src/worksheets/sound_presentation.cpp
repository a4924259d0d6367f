#include "worksheets/sound_presentation.h"

#include "core/wort.h"
#include "engine/exam_plan.h"
#include "sound/phrase.h"
#include "sound/problem.h"
#include "worksheets/worksheet.h"

#include <span>

namespace worksheets {

namespace wort = core::wort;

namespace {

constexpr float breath = 50;  // milliseconds between silence and what follows

}  // namespace

SoundPresentation::SoundPresentation(Worksheet& worksheet, core::Programm& programm,
                                     sound::Midi& midi, form::Control& area)
    : worksheet_(worksheet),
      p(programm),
      z(programm.zustand),
      midi_(midi),
      wieder(worksheet, {"wieder", &area}),
      wieder2(worksheet, {"wieder2", &area}),
      whlgzaehler(worksheet, {"whlgzaehler", &area}),
      whlgzaehler_lb(worksheet, {"whlgzaehler_lb", &area}),
      playMark(worksheet, {"playMark", &area}),
      volumeLabel(worksheet, {"volumeLabel", &area}),
      volume(worksheet, {"volume", &area}, 0, 127),
      soundHint(worksheet, {"soundHint", &area}),
      spieltimer(worksheet, {"spieltimer"}, 1000) {
    volume.onChange = {"volume_change.", [this] { midi_.setVelocity(volume.value()); }};
    wieder.onClick = {"wieder_click.", [this] { wieder_click(); }};
    wieder2.onClick = {"wieder2_click.", [this] { playReview(nullptr); }};
    spieltimer.onTick = {"spieltimer_timer.", [this] { spieltimer_timer(); }};
    wieder.enabled = false;
    wieder2.visible = false;
}

void SoundPresentation::offerOwnVersion(std::function<Version()> version) {
    version_ = std::move(version);
    eigene = std::make_unique<form::Panel>(worksheet_, form::Place{"eigene", wieder2.container()});
    eigene->visible = false;
    eigene->onClick = {"eigene_click.", [this] {
                           const Version noten = version_();
                           playReview(&noten);
                       }};
}

void SoundPresentation::beginRun() {
    if (eigene) worksheet_.beschriften({{*eigene, wort::ownVersion}});
    worksheet_.beschriften({{wieder, wort::repeat},
                            {wieder2, wort::repeatCheck},
                            {whlgzaehler_lb, wort::repeats},
                            {volumeLabel, wort::volume}});
    worksheet_.benennen({{volume, wort::volume}});
    volume.setValue(midi_.velocity());
    showProblem();
    wieder.enabled = false;
    spieltimer.setInterval(engine::soundingTime(z));
}

void SoundPresentation::beginTask() {
    wieder2.visible = false;
    if (eigene) eigene->visible = false;
    wieder.visible = true;
    wieder.enabled = false;
    spielArt_ = Playback::Task;
    showProblem();
}

void SoundPresentation::FeinVerstimmen() {
    feinVorzeichen_ = p.rnd.sign();
    feinVerstimmung_ = p.rnd.below(16) * feinVorzeichen_;
}

bool SoundPresentation::fallSilent() {
    playMark.flow = {};
    midi_.MidiReset();
    midi_.Delay(breath, worksheet_.abbruch());
    return !worksheet_.abbruch();
}

void SoundPresentation::present() {
    feinVerstimmung_ = 0;
    if (z.frequenz == 1) FeinVerstimmen();
    if (fallSilent()) AufgabeSpielen();
}

void SoundPresentation::AufgabeSpielen(const Version* ownNotes) {
    if (!fallSilent()) return;
    worksheet_.listen();
    midi_.setInstruments(z.patch);
    midi_.MidiAusblenden();
    if (worksheet_.abbruch()) return;

    const engine::Task& a = worksheet_.run().task();
    base::FixedArray<sound::PhraseNote, 9> notes;
    for (int i = 0; i < a.tonAnz; ++i) {
        const int k = a.index(i);
        notes[i] = {ownNotes ? (*ownNotes)[i] : a.noten[k], k, a.stimmWert[k]};
    }
    const auto phrase = std::span(notes.begin(), static_cast<std::size_t>(a.tonAnz));
    const bool varies = z.frequenz == 1;
    sound::queuePhrase(midi_, phrase,
                       {.noteDuration = z.tempo_dauer[z.tempoIdx],
                        .stimmung = z.stimmung,
                        .detune = varies ? std::optional(feinVerstimmung_) : std::nullopt});
    midi_.Delay(breath, worksheet_.abbruch());
    if (!worksheet_.abbruch()) midi_.MidiEinblenden();
    if (worksheet_.abbruch()) return;
    playMark.flow = {a.tonAnz, z.tempo_dauer[z.tempoIdx]};
    spieltimer.start();
}

void SoundPresentation::spieltimer_timer() {
    spieltimer.stop();
    playMark.flow = {};
    showProblem();
    if (worksheet_.abbruch()) return;
    if (spielArt_ == Playback::Review) {
        allowReview(true);
        worksheet_.offerNext();
        return;
    }
    worksheet_.allowAnswer();
    wieder.enabled = true;
}

void SoundPresentation::wieder_click() {
    wieder.enabled = false;
    worksheet_.closeAnswers();
    if (!fallSilent()) return;
    spielArt_ = Playback::Repetition;
    worksheet_.repeated();
    AufgabeSpielen();
}

/// The task once more after it was closed, or the learner's own version of it.
void SoundPresentation::playReview(const Version* ownNotes) {
    allowReview(false);
    spielArt_ = Playback::Review;
    worksheet_.withdrawNext();
    if (fallSilent()) AufgabeSpielen(ownNotes);
}

void SoundPresentation::allowReview(bool allowed) {
    wieder2.enabled = allowed;
    if (eigene) eigene->enabled = allowed;
}

void SoundPresentation::repeat() {
    if (wieder.usable())
        wieder.click();
    else
        wieder2.click();
}

void SoundPresentation::offerReview() {
    wieder.enabled = false;
    wieder2.visible = true;
    if (eigene) eigene->visible = true;
    allowReview(true);
}

void SoundPresentation::closeTask() {
    offerReview();
    wieder.visible = false;
}

void SoundPresentation::endRun(bool review) {
    if (review) return offerReview();
    wieder.enabled = false;
    allowReview(false);
}

void SoundPresentation::showProblem() {
    sound::showProblem(soundHint, midi_.output().problem(), p.worte);
}

void SoundPresentation::leave() {
    spieltimer.stop();
    playMark.flow = {};
    wieder.enabled = false;
    allowReview(false);
    midi_.MidiReset();
    midi_.setInstruments(z.patch);
}

}  // namespace worksheets
