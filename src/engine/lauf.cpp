#include "engine/lauf.h"

#include "base/rounding.h"
#include "engine/fortschritt.h"

#include <algorithm>

namespace engine {

Lauf::Lauf(core::Zustand& zustand, base::Rnd& rnd, results::Wertung& wertung, const Uebung& uebung,
           Protokoll* protokoll)
    : z(zustand),
      rnd_(rnd),
      wertung_(wertung),
      uebung_(uebung),
      protokoll_(protokoll),
      matbox_(zustand, wertung, rnd, uebung.schriftlich()),
      wahl_(zustand, rnd, matbox_, uebung.tonart) {}

void Lauf::beginnen(Aufgabendauer dauer, const std::function<std::int64_t()>& saat) {
    const bool nummer = z.uebungsmodus == core::modus::pruefung && z.zufallsNr != 0;
    rnd_.restart(nummer ? -int(z.zufallsNr) : saat());
    wertung_.auswertung.Clear();
    wertung_.ergebnis_best.Clear();
    wahl_.LaufBeginn();
    ton_anz_akt_ = uebung_.schriftlich() ? i16(4) : erlaubteFehler(z);
    z.bewertung_basis = static_cast<float>(ton_anz_akt_) * 0.5F;
    if (z.uebungsmodus == core::modus::training) matbox_.TrainingBeginnen();
    if (core::imTest(z)) pruefungBeginnen(dauer);
}

void Lauf::pruefungBeginnen(Aufgabendauer dauer) {
    dauer.zeit_faktor = uebung_.zeit_faktor;
    const Pruefungsplan plan = planen(dauer, matbox_.potSkala());
    stand_.pruefAufgaben = stand_.restAufgaben = plan.pruefAufgaben;
    stand_.restZeit = plan.restZeit;
    z.bestAnz = plan.gekuerzt ? 3 : 4;
    matbox_.PruefungBeginnen(plan.pruefAufgaben / 2);
}

void Lauf::aufnehmen(const core::Value& satz) {
    stand_.zaehler = TrainingsstandLesen(satz, matbox_.potSkala(), z, wertung_.auswertung);
    matbox_.TrainingFortsetzen();
}

core::Value::Array Lauf::sichern() const {
    return TrainingsstandSchreiben(z, matbox_.potSkala(), wertung_.auswertung, stand_.zaehler);
}

const Aufgabe& Lauf::ziehen() {
    const Aufgabe& a = wahl_.Ziehen();
    if (protokoll_) protokoll_->aufgabe(a);
    return a;
}

void Lauf::wiederholt(float uhr) {
    Verlauf& v = wahl_.verlauf();
    v.zeit.ruht(uhr);
    v.whlgAnz += 1;
    v.whlg_anz += 1;
    ++stand_.zaehler.wiederholungen;
}

AufgZustand Lauf::werten(Antwort antwort, float uhr) {
    antwort.dauer = aufgabe().verlauf.zeit.zehntel(uhr);
    antwort.whlg_anz = aufgabe().verlauf.whlg_anz;
    letzteAntwort_ = antwort;
    if (protokoll_) protokoll_->antwort(aufgabe(), antwort);
    if (antwort.richtig)
        richtigeAntwort();
    else
        falscheAntwort(uhr);
    return aufgZustand_;
}

void Lauf::richtigeAntwort() {
    Verlauf& v = wahl_.verlauf();
    ++stand_.zaehler.richtig;
    if (v.fehler == 0 && core::gewertet(z)) {
        const Aufgabe& a = aufgabe();
        const int zeichen =
            uebung_.schriftlich()
                ? int(vorzeichenAnzahl(a.quintLage, Tonartwahl::stufenQz(z.skal_typ, a.skala_nr)))
                : 1;
        v.zeit_malus = ZeitStrafeBerechnen(letzteAntwort_.dauer, uebung_.zeit_faktor * zeichen);
        v.punkte = gutschrift;
    }
    AufgabeAbschliessen();
}

void Lauf::falscheAntwort(float uhr) {
    Verlauf& v = wahl_.verlauf();
    ++stand_.zaehler.falsch;
    v.fehler += 1;
    v.punkte += 2;
    if (!uebung_.schriftlich())
        v.FalschSkala[v.fehler] = verwechselt(z, letzteAntwort_.index, aufgabe().code());
    if (v.fehler == ton_anz_akt_) return AufgabeAbschliessen();
    aufgZustand_ = AufgZustand::Weiter;
    v.whlg_anz = 0;
    v.zeit.vonVorn(uhr);
    v.antwort_nr += 1;
    if (protokoll_) protokoll_->weitererVersuch(v.antwort_nr);
}

void Lauf::AufgabeAbschliessen() {
    aufgZustand_ = AufgZustand::Geschlossen;
    if (core::gewertet(z)) stand_.wertung = FortschrittWerten();
    if (core::imTraining(z)) trainingWeiter();
    if (core::imTest(z)) pruefungWeiter();
    if (aufgZustand_ == AufgZustand::Geschlossen) stand_.schalter_frei = true;
}

/// Books the task in hand and, in training, changes the weights. @return its points before booking.
float Lauf::FortschrittWerten() {
    Verlauf& v = wahl_.verlauf();
    const i16 code = aufgabe().code();
    const auto wiederholt = static_cast<float>(v.whlgAnz);
    float w = 0;
    if (v.punkte == gutschrift) {
        // Every repetition and every tenth of penalty eats into the credit.
        v.punkte = std::min(0.0F, wiederholt + v.punkte + v.zeit_malus);
        w = z.bewertung_basis * v.punkte;
    } else if (v.punkte > 0) {
        v.punkte = std::min(v.punkte + wiederholt, static_cast<float>(2 * ton_anz_akt_));
        w = v.punkte;
    }
    wertung_.ErgebnisBuchen(core::skalaSlot(code, z.skal_anz), w);

    if (core::imTest(z) || v.punkte == 0) return w;
    matbox_.gewichten(code, base::roundedI16(static_cast<double>(v.punkte)));
    if (v.punkte <= 0) return w;
    // What was confused with the right scale comes up more often too.
    for (int k = 1; k <= ton_anz_akt_; ++k)
        if (v.FalschSkala[k] != 0) matbox_.gewichten(v.FalschSkala[k], 1);
    return w;
}

void Lauf::trainingWeiter() {
    if (matbox_.fortschreiben() != Matbox::Trainingsstand::Laeuft)
        aufgZustand_ = AufgZustand::TrainingBeendet;
}

void Lauf::pruefungWeiter() {
    stand_.restAufgaben -= 1;
    if (stand_.restAufgaben == 0)
        aufgZustand_ = AufgZustand::PruefungBeendet;
    else if (stand_.pruefAufgaben / 2 == stand_.restAufgaben)
        matbox_.MatFuellen();
}

bool Lauf::zehnSekundenUm() {
    stand_.restZeit -= 10;
    return stand_.restZeit > 0;
}

}  // namespace engine
