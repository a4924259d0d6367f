#include "setup/sound_panel.h"

#include "base/array.h"
#include "base/rounding.h"
#include "core/katalog.h"
#include "core/wort.h"
#include "sound/instruments.h"
#include "sound/phrase.h"
#include "sound/problem.h"

#include <algorithm>
#include <array>
#include <vector>

namespace setup {

namespace wort = core::wort;

namespace {

namespace katalog = core::katalog;

/// Tuning correction of a note in bend steps. In Pythagorean tuning only white keys have a degree.
base::i16 korrektur(int stimmung, int note) {
    const int klasse = note % 12;
    const auto grad = std::ranges::find(katalog::diatonisch, klasse) - katalog::diatonisch.begin();
    const bool weiss = grad < std::ssize(katalog::diatonisch);
    if (stimmung == katalog::stimmung::pythagoreisch && !weiss) return 0;
    return katalog::tuningCorrection(stimmung, 0, weiss ? static_cast<int>(grad) : 0, klasse);
}

/// How it is said what an instrument is worth.
struct Worth {
    const char* sign;
    wort::Id word;
};
constexpr std::array worths{Worth{"", wort::none},          Worth{"✓", wort::none},
                            Worth{"◐", wort::partlySilent}, Worth{"≈", wort::unclearPitch},
                            Worth{"↕", wort::otherOctave},  Worth{"✗", wort::noSuchInstrument}};

const Worth& worthOf(sound::Fitness fitness) { return base::at(worths, static_cast<int>(fitness)); }

}  // namespace

SoundPanel::SoundPanel(core::Formular& form, core::Programm& programm, sound::Midi& midi,
                       sound::MidiOutput& ausgabe, const Groups& groups, Zweig zweig,
                       const bool& abbruch)
    : form_(form),
      p(programm),
      z(programm.zustand),
      midi_(midi),
      MIDI(ausgabe),
      zweig_(zweig),
      abbruch_(abbruch),
      ComboPatch(form, {"ComboPatch", &groups(group::sound)}),
      lb15(form, "lb15", klingt(zweig) ? 2 : 4, &groups(group::sound)),
      temp_Combo(form, {"temp_Combo", &groups(group::sound)}),
      pic15(form, {"pic15", &groups(group::sound)}),
      klang_contr(form, {"klang_contr", &groups(group::check)}),
      lb14(form, "lb14", wennKlang(zweig, {0, 1}), &groups(group::check)),
      HSliderVolume(form, {"HSliderVolume", &groups(group::check)}, 0, 127),
      tonHinweis(form, {"tonHinweis"}) {
    openTempo();
    form.benennen(
        {{ComboPatch, wort::timbre}, {temp_Combo, wort::tempo}, {HSliderVolume, wort::volume}});
    if (klingt(zweig)) {
        form.beschriften(
            {{klang_contr, wort::soundCheck}, {lb14(0), wort::volume}, {lb15(0), wort::tempo}});
        lb15(1).caption = "=MM";
    }
    temp_Combo.onSelect = {"temp_Combo_click.", [this] { z.tempoIdx = temp_Combo.listIndex(); }};
    ComboPatch.onSelect = {"ComboPatch_click.", [this] { ComboPatch_click(); }};
    HSliderVolume.onChange = {"HSliderVolume_change.", [this] { HSliderVolume_change(); }};
    klang_contr.onClick = {"klang_contr_click.", [this] { klang_contr_click(); }};
    formularFort_ =
        form.forms().gone.connect([this](form::Form&) { KlangKontrolleAbschliessen(); });
}

void SoundPanel::KlangEinrichten() {
    if (!klingt(zweig_)) return;
    midi_.MidiGeraete(MIDI);
    midi_.MidiInit(MIDI);
    MIDI.queueEmpty = [this] { form_.guard("QueueEmpty.", [this] { QueueEmpty(); }); };
    problemTold_ = MIDI.problemChanged.connect([this] { TonHinweisZeigen(); });
    fitnessKnown_ = MIDI.fitnessKnown.connect([this] { showFitness(); });
    sound::Klangliste(ComboPatch, p.worte);
    ComboPatch.setOnTop(z.usedInstruments);
    ComboPatch.setListIndex(0);
    for (const char* tempo : katalog::tempo_name) temp_Combo.add(tempo);
    temp_Combo.setListIndex(1);
    HSliderVolume.setValue(100);
    TonHinweisZeigen();
}

void SoundPanel::silence() {
    if (klingt(zweig_)) midi_.MidiReset();
}

void SoundPanel::disconnect() {
    if (!klingt(zweig_)) return;
    MIDI.queueEmpty = nullptr;
}

void SoundPanel::chooseTempo(int index) {
    if (klingt(zweig_)) temp_Combo.setListIndex(index);
}

void SoundPanel::openTempo() {
    temp_Combo.enabled = true;
    temp_Combo.backColour = farben::tempoOffen;
    temp_Combo.foreColour = base::colours::white;
}

void SoundPanel::ComboPatch_click() {
    z.patch.fill(ComboPatch.listIndex());
    midi_.setInstruments(z.patch);
    TonHinweisZeigen();
}

sound::Fitness SoundPanel::fitness(int program) const {
    return MIDI.fitness(program, z.FrquMinAkt, z.FrquMaxAkt);
}

void SoundPanel::showFitness() {
    if (!klingt(zweig_) || ComboPatch.count() == 0) return;
    std::vector<std::string> notes;
    for (int program = 0; program < ComboPatch.count(); ++program) {
        const Worth& worth = worthOf(fitness(program));
        notes.emplace_back(worth.sign);
        if (worth.word != wort::none) notes.back() += " " + p.Wort(worth.word);
    }
    ComboPatch.setNotes(std::move(notes));
    TonHinweisZeigen();
}

void SoundPanel::rememberInstrument() {
    if (!klingt(zweig_)) return;
    constexpr std::size_t most = 5;
    auto& used = z.usedInstruments;
    std::erase(used, ComboPatch.listIndex());
    used.insert(used.begin(), ComboPatch.listIndex());
    if (used.size() > most) used.pop_back();
    ComboPatch.setOnTop(used);
}

void SoundPanel::HSliderVolume_change() {
    midi_.setVelocity(HSliderVolume.value());
    lb14(1).caption = " " + std::to_string(HSliderVolume.value());
}

void SoundPanel::klang_contr_click() {
    constexpr int noten = 6;
    const int d = base::rounded((z.FrquMaxAkt - z.FrquMinAkt) / 5.0);
    verklungen_ = false;
    klang_contr.enabled = false;
    onCheck(true);
    rememberInstrument();
    midi_.MidiReset();
    TonHinweisZeigen();
    midi_.setInstruments(z.patch);
    std::vector<sound::PhraseNote> linie;
    for (int i = 0; i < noten; ++i) {
        const base::i16 note = z.FrquMinAkt + i * (d - 1);
        linie.push_back({note, i, korrektur(z.stimmung, note)});
    }
    sound::queuePhrase(midi_, linie,
                       {.noteDuration = z.tempo_dauer[z.tempoIdx], .stimmung = z.stimmung});
    midi_.Delay(100, abbruch_);
    if (!abbruch_) midi_.output().start();
}

void SoundPanel::QueueEmpty() {
    checkEnded();
    KlangKontrolleAbschliessen();
}

/// While another form is on top it waits: what is enabled behind that form's back could be pressed.
void SoundPanel::KlangKontrolleAbschliessen() {
    if (!verklungen_ || abbruch_) return;
    const form::Form* vorn = form_.forms().last();
    if (!vorn || vorn->caption() != form_.caption()) return;
    verklungen_ = false;
    klang_contr.enabled = true;
    onCheck(false);
}

/// Why nothing can be heard, or else what is wrong with the instrument that is chosen.
void SoundPanel::TonHinweisZeigen() {
    sound::showProblem(tonHinweis, MIDI.problem(), p.worte);
    const int program = ComboPatch.listIndex();
    if (tonHinweis.visible() || program < 0) return;
    const wort::Id word = worthOf(fitness(program)).word;
    if (word == wort::none) return;
    tonHinweis.caption = core::eingesetzt(p.Wort(wort::instrumentInRange),
                                          ComboPatch.item(program).caption(), p.Wort(word));
    tonHinweis.visible = true;
}

}  // namespace setup
