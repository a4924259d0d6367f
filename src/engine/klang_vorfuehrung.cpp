#include "engine/klang_vorfuehrung.h"

#include "base/rounding.h"
#include "sound/klang.h"

namespace engine {

namespace {

using form::Place;
constexpr float atempause = 50;  // milliseconds between silence and what follows

}  // namespace

KlangVorfuehrung::KlangVorfuehrung(Arbeitsblatt& blatt, core::Programm& programm, sound::Midi& midi,
                                   const Aufgabe& aufgabe, form::Control& bereich)
    : blatt_(blatt),
      p(programm),
      z(programm.zustand),
      midi_(midi),
      a(aufgabe),
      wieder(blatt, {"wieder", Place::noIndex, &bereich}),
      wieder2(blatt, {"wieder2", Place::noIndex, &bereich}),
      whlgzaehler(blatt, {"whlgzaehler", Place::noIndex, &bereich}),
      whlgzaehler_lb(blatt, {"whlgzaehler_lb", Place::noIndex, &bereich}),
      spieltimer(blatt, {"spieltimer"}, 1000) {
    wieder.onClick = {"wieder_click.", [this] { wieder_click(); }};
    wieder2.onClick = {"wieder2_click.", [this] { KontrolleSpielen(nullptr); }};
    spieltimer.onTick = {"spieltimer_timer.", [this] { spieltimer_timer(); }};
    wieder.enabled = false;
    wieder2.visible = false;
}

void KlangVorfuehrung::EigeneFassungAnbieten(std::function<Fassung()> fassung) {
    fassung_ = std::move(fassung);
    eigene =
        std::make_unique<form::Panel>(blatt_, Place{"eigene", Place::noIndex, wieder2.container()});
    eigene->visible = false;
    eigene->onClick = {"eigene_click.", [this] {
                           const Fassung noten = fassung_();
                           KontrolleSpielen(&noten);
                       }};
}

void KlangVorfuehrung::LaufBeginn() {
    if (eigene) eigene->caption = p.Wort(822);
    wieder.caption = p.Wort(629);
    wieder2.caption = p.Wort(632);
    whlgzaehler_lb.caption = p.Wort(832);
    whlgzaehler.caption = "0";
    wieder.enabled = false;
    spieltimer.setInterval(z.tempo_dauer[z.tempoIdx] * a.tonAnz);
}

int KlangVorfuehrung::wiederholungen() const { return base::leadingInt(whlgzaehler.caption()); }

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

void KlangVorfuehrung::Vorfuehren() {
    feinVerstimmung_ = 0;
    if (z.frequenz == 1) FeinVerstimmen();
    midi_.MidiReset();
    midi_.Delay(atempause, blatt_.abbruch());
    if (blatt_.abbruch()) return;
    AufgabeSpielen();
    if (!blatt_.abbruch()) spieltimer.start();
}

int KlangVorfuehrung::tonAn(int position) const {
    if (z.abfolge == 1) return a.ton_abfolg[position];
    return z.akt_richtung == 1 ? position : int(a.tonAnz) - 1 - position;
}

void KlangVorfuehrung::AufgabeSpielen(const Fassung* eigeneNoten) {
    midi_.MidiReset();
    midi_.Delay(atempause, blatt_.abbruch());
    if (blatt_.abbruch()) return;
    for (int i = 0; i < sound::kanaele; ++i) midi_.SetzeKlangfarbe(z.patch[i], i);
    midi_.MidiAusblenden();
    if (blatt_.abbruch()) return;

    const int d = z.tempo_dauer[z.tempoIdx];
    const int laenge = base::rounded(d * 0.9);
    const i16 mitte = sound::Midi::bendMitte + feinVerstimmung_;
    if (z.stimmung == 0 && z.frequenz == 1) midi_.MidiPitchBend(0, mitte);
    for (int i = 0; i < a.tonAnz; ++i) {
        const int k = tonAn(i);
        // A bend acts on a whole channel: outside equal temperament every degree has its own.
        const int kanal = z.stimmung == 0 ? 0 : k + 1;
        if (z.stimmung != 0) midi_.MidiPitchBend(kanal, a.stimmWert[k] + mitte);
        midi_.MidiNote(eigeneNoten ? (*eigeneNoten)[i] : a.noten[k], d * i, laenge, kanal, i);
    }
    midi_.Delay(atempause, blatt_.abbruch());
    if (!blatt_.abbruch()) midi_.MidiEinblenden();
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
    midi_.MidiReset();
    midi_.Delay(atempause, blatt_.abbruch());
    if (blatt_.abbruch()) return;
    spielArt_ = SpielArt::Wiederholung;
    whlgzaehler.caption = std::to_string(wiederholungen() + 1);
    z.whlgAnz += 1;
    z.whlg_anz += 1;
    z.antw_ende = p.ports.loop.clock();
    z.AntwDau += z.antw_ende - z.AntwDauStart;
    AufgabeSpielen();
    if (!blatt_.abbruch()) spieltimer.start();
}

/// The task as a control, or the learner's own version of it.
void KlangVorfuehrung::KontrolleSpielen(const Fassung* eigeneNoten) {
    kontrolleErlauben(false);
    spielArt_ = SpielArt::Kontrolle;
    blatt_.NaechsteZurueckziehen();
    midi_.MidiReset();
    midi_.Delay(atempause, blatt_.abbruch());
    if (blatt_.abbruch()) return;
    AufgabeSpielen(eigeneNoten);
    if (!blatt_.abbruch()) spieltimer.start();
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
    for (int i = 0; i < sound::kanaele; ++i) midi_.SetzeKlangfarbe(z.patch[i], i);
}

}  // namespace engine
