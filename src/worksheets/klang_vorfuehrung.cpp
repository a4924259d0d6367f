#include "worksheets/klang_vorfuehrung.h"

#include "core/wort.h"
#include "sound/tonlinie.h"
#include "worksheets/arbeitsblatt.h"

namespace worksheets {

namespace wort = core::wort;

namespace {

constexpr float atempause = 50;  // milliseconds between silence and what follows

}  // namespace

KlangVorfuehrung::KlangVorfuehrung(Arbeitsblatt& blatt, core::Programm& programm, sound::Midi& midi,
                                   form::Control& bereich)
    : blatt_(blatt),
      p(programm),
      z(programm.zustand),
      midi_(midi),
      wieder(blatt, {"wieder", &bereich}),
      wieder2(blatt, {"wieder2", &bereich}),
      whlgzaehler(blatt, {"whlgzaehler", &bereich}),
      whlgzaehler_lb(blatt, {"whlgzaehler_lb", &bereich}),
      spieltimer(blatt, {"spieltimer"}, 1000) {
    wieder.onClick = {"wieder_click.", [this] { wieder_click(); }};
    wieder2.onClick = {"wieder2_click.", [this] { KontrolleSpielen(nullptr); }};
    spieltimer.onTick = {"spieltimer_timer.", [this] { spieltimer_timer(); }};
    wieder.enabled = false;
    wieder2.visible = false;
}

void KlangVorfuehrung::EigeneFassungAnbieten(std::function<Fassung()> fassung) {
    fassung_ = std::move(fassung);
    eigene = std::make_unique<form::Panel>(blatt_, form::Place{"eigene", wieder2.container()});
    eigene->visible = false;
    eigene->onClick = {"eigene_click.", [this] {
                           const Fassung noten = fassung_();
                           KontrolleSpielen(&noten);
                       }};
}

int KlangVorfuehrung::dauer() const {
    return z.tempo_dauer[z.tempoIdx] * core::katalog::kategorie(z.skal_typ).tonAnz;
}

void KlangVorfuehrung::LaufBeginn() {
    if (eigene) blatt_.beschriften({{*eigene, wort::ownVersion}});
    blatt_.beschriften(
        {{wieder, wort::repeat}, {wieder2, wort::repeatCheck}, {whlgzaehler_lb, wort::repeats}});
    wieder.enabled = false;
    spieltimer.setInterval(dauer());
}

void KlangVorfuehrung::AufgabeBeginnt() {
    wieder2.visible = false;
    if (eigene) eigene->visible = false;
    wieder.visible = true;
    wieder.enabled = false;
    spielArt_ = SpielArt::Aufgabe;
}

void KlangVorfuehrung::FeinVerstimmen() {
    feinVorzeichen_ = p.rnd.sign();
    feinVerstimmung_ = p.rnd.below(16) * feinVorzeichen_;
}

bool KlangVorfuehrung::stillWerden() {
    midi_.MidiReset();
    midi_.Delay(atempause, blatt_.abbruch());
    return !blatt_.abbruch();
}

void KlangVorfuehrung::Vorfuehren() {
    feinVerstimmung_ = 0;
    if (z.frequenz == 1) FeinVerstimmen();
    if (stillWerden()) AufgabeSpielen();
}

void KlangVorfuehrung::AufgabeSpielen(const Fassung* eigeneNoten) {
    if (!stillWerden()) return;
    midi_.SetzeKlangfarben(z.patch);
    midi_.MidiAusblenden();
    if (blatt_.abbruch()) return;

    const engine::Aufgabe& a = blatt_.lauf().aufgabe();
    std::vector<sound::Linienton> linie;
    for (int i = 0; i < a.tonAnz; ++i) {
        const int k = a.index(i);
        linie.push_back({eigeneNoten ? (*eigeneNoten)[i] : a.noten[k], k, a.stimmWert[k]});
    }
    const bool variiert = z.frequenz == 1;
    sound::TonlinieLegen(
        midi_, linie,
        {.tondauer = z.tempo_dauer[z.tempoIdx],
         .stimmung = z.stimmung,
         .verstimmung = variiert ? std::optional(feinVerstimmung_) : std::nullopt});
    midi_.Delay(atempause, blatt_.abbruch());
    if (!blatt_.abbruch()) midi_.MidiEinblenden();
    if (!blatt_.abbruch()) spieltimer.start();
}

void KlangVorfuehrung::spieltimer_timer() {
    spieltimer.stop();
    if (blatt_.abbruch()) return;
    if (spielArt_ == SpielArt::Kontrolle) {
        kontrolleErlauben(true);
        blatt_.NaechsteAnbieten();
        return;
    }
    blatt_.AntwortZulassen();
    wieder.enabled = true;
}

void KlangVorfuehrung::wieder_click() {
    wieder.enabled = false;
    blatt_.AntwortenSchliessen();
    if (!stillWerden()) return;
    spielArt_ = SpielArt::Wiederholung;
    blatt_.wiederholt();
    AufgabeSpielen();
}

/// The task as a control, or the learner's own version of it.
void KlangVorfuehrung::KontrolleSpielen(const Fassung* eigeneNoten) {
    kontrolleErlauben(false);
    spielArt_ = SpielArt::Kontrolle;
    blatt_.NaechsteZurueckziehen();
    if (stillWerden()) AufgabeSpielen(eigeneNoten);
}

void KlangVorfuehrung::kontrolleErlauben(bool erlaubt) {
    wieder2.enabled = erlaubt;
    if (eigene) eigene->enabled = erlaubt;
}

void KlangVorfuehrung::Wiederholen() {
    if (wieder.usable())
        wieder.click();
    else
        wieder2.click();
}

void KlangVorfuehrung::kontrolleAnbieten() {
    wieder.enabled = false;
    wieder2.visible = true;
    if (eigene) eigene->visible = true;
    kontrolleErlauben(true);
}

void KlangVorfuehrung::AufgabeGeschlossen() {
    kontrolleAnbieten();
    wieder.visible = false;
}

void KlangVorfuehrung::LaufBeendet(bool kontrolle) {
    if (kontrolle) return kontrolleAnbieten();
    wieder.enabled = false;
    kontrolleErlauben(false);
}

void KlangVorfuehrung::Verlassen() {
    spieltimer.stop();
    wieder.enabled = false;
    kontrolleErlauben(false);
    midi_.MidiReset();
    midi_.SetzeKlangfarben(z.patch);
}

}  // namespace worksheets
