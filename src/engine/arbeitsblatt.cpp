#include "engine/arbeitsblatt.h"

#include "base/rounding.h"
#include "base/runtime_error.h"
#include "core/fortsetzung.h"
#include "engine/trainingsstand.h"

namespace engine {

namespace colours = base::colours;
using core::modus::ausprobieren;
using core::modus::fortsetzung;
using core::modus::training;

namespace {

void hoch(form::Label& label) {
    label.caption = std::to_string(base::leadingInt(label.caption()) + 1);
}

}  // namespace

Arbeitsblatt::Arbeitsblatt(core::Programm& programm, sound::Midi& midi, results::Wertung& wertung,
                           std::string name, const TonartFabrik& tonart)
    : Formular(programm, std::move(name)),
      midi_(midi),
      wertung_(wertung),
      matbox_(z, wertung.auswertung, p.rnd),
      tonart_(tonart(z, p.rnd, a)),
      wahl_(z, p.rnd, matbox_, *tonart_, a) {
    const auto weiter = [this](form::Button& button) {
        button.enabled = false;
        MatWahl();
    };
    CmdNextAufg.onClick = {"CmdNextAufg_click.", [this, weiter] { weiter(CmdNextAufg); }};
    zurueck.onClick = {"zurueck_click.", [this] { zurueck_click(); }};
    cmdHilfe.onClick = {"cmdHilfe_click.", [this] { HilfeZeigen(); }};
    cmd_test_ein.onClick = {"cmd_test_ein_click.", [this] { TeststandZeigen(true); }};
    cmd_test_aus.onClick = {"cmd_test_aus_click.", [this] { TeststandZeigen(false); }};
    start.onTick = {"start_timer.", [this] { start_timer(); }};
    WahlAutomat.onTick = {"WahlAutomat_timer.", [this] {
                              WahlAutomat.stop();
                              LbNextAufg.visible = false;
                              MatWahl();
                          }};
    Uhrzeit.onTick = {"Uhrzeit_timer.", [this] { Uhrzeit_timer(); }};
    for (form::Group& bereich : PicUetyp) bereich.visible = false;
    WaitMeldung.visible = false;
    LbNextAufg.visible = false;
    ergebnis.backColour = colours::black;
    CmdNextAufg.enabled = false;
}

/// Only the first activation of a form begins its run.
void Arbeitsblatt::activate() {
    if (begonnen_) return;
    begonnen_ = true;
    start.start();
}

void Arbeitsblatt::Beschriften() {
    beschriften({{copyright, 6},
                 {LbNextAufg, 420},
                 {zurueck, 640},
                 {true_false(0), 468},
                 {true_false(1), 232},
                 {ergebnis_anz(0), 566},
                 {ergebnis_anz(1), 130},
                 {ergebnis_anz(2), 638},
                 {cmd_test_aus, 552},
                 {cmd_test_ein, 551},
                 {WaitMeld, 726},
                 {tasten, 826},
                 {cmdHilfe, 816}});
    CmdNextAufg.caption = Wort(129) + " 1";
    LbNextAufg.caption = CmdNextAufg.caption();
    matboxanz.accessibleName = Wort(566);
}

void Arbeitsblatt::start_timer() {
    start.stop();
    setPointer(form::Pointer::Hourglass);
    zurueck.tag = "OK";
    abbruch_ = false;
    setCaption(p.katalog.typ_name[z.ueb_typ]);
    Beschriften();
    forms().show(name());

    z.schalter_frei = 0;
    Saeen();
    wertung_.auswertung.Clear();
    wertung_.ergebnis_best.Clear();
    for (form::Label& zahl : zaehler) zahl.caption = "0";
    z.zeit_faktor = zeitFaktor();
    wahl_.LaufBeginn();
    AntwortenVorbereiten();
    z.ton_anz_akt = erlaubt();
    fehlerMax_ = 2 * z.ton_anz_akt;
    z.bewertung_basis = static_cast<float>(int(z.ton_anz_akt)) * 0.5F;
    vorfuehrung().LaufBeginn();
    ModusEinrichten();

    setPointer(form::Pointer::Arrow);
    Uhrzeit.start();
    Uhr.caption = p.ports.loop.now().timeOfDay();
    const bool automatisch = z.abfrage == 1;
    CmdNextAufg.visible = !automatisch;
    CmdNextAufg.enabled = !automatisch;
    LbNextAufg.visible = automatisch;
    if (automatisch) WahlAutomat.start();
    ereignis(Ereignis::LaufBereit);
}

/// Chance begins anew with every run: an exam with a number repeats its tasks, and nothing goes on
/// with them.
void Arbeitsblatt::Saeen() {
    const bool nummer = z.uebungsmodus >= core::modus::pruefung && z.zufallsNr != 0;
    p.rnd.restart(nummer ? -int(z.zufallsNr) : p.ports.saat());
}

void Arbeitsblatt::ModusEinrichten() {
    if (z.uebungsmodus == training || z.uebungsmodus == fortsetzung) TrainingEinrichten();
    if (z.uebungsmodus > fortsetzung) PruefungEinrichten();
}

void Arbeitsblatt::TrainingEinrichten() {
    if (z.uebungsmodus == fortsetzung)
        TrainingFortsetzen();
    else
        matbox_.TrainingBeginnen();
    TrainingAnzeigen();
    PicUetyp(0).visible = true;
    ergebnis_anz(0).visible = true;
    ergebnis_anz(1).visible = false;
    ergebnis_anz(2).visible = false;
}

void Arbeitsblatt::TrainingFortsetzen() {
    if (!p.host.LeseAbbruch("A" + core::satz(z)))
        throw base::RuntimeError(base::ErrorNumber::InvalidCall, "saved training: not there");
    const Zaehlerstand stand = TrainingsstandLesen(z.gelesen_a, z, wertung_.auswertung);
    matbox_.TrainingFortsetzen();
    zaehler(0).caption = std::to_string(stand.richtig);
    zaehler(1).caption = std::to_string(stand.falsch);
    vorfuehrung().WiederholungenSetzen(stand.wiederholungen);
}

void Arbeitsblatt::TrainingAnzeigen() {
    const double anteil = static_cast<double>(z.matbox_zahl) / matbox_.obergrenze();
    matboxanz.floodPercent = base::rounded(anteil * 100);
    matboxanz.hint = core::eingesetzt(Wort(818), std::to_string(z.matbox_zahl),
                                      std::to_string(matbox_.obergrenze()));
}

void Arbeitsblatt::PruefungEinrichten() {
    const Pruefungsplan plan = planen({.vorfuehrung = vorfuehrung().dauer(),
                                       .wechsel = WahlAutomat.interval(),
                                       .zeit_faktor = z.zeit_faktor},
                                      z.potSkala);
    pruefAufgaben_ = restAufgaben_ = plan.pruefAufgaben;
    restZeit_ = plan.restZeit;
    z.bestAnz = plan.gekuerzt ? 3 : 4;
    matbox_.PruefungBeginnen(pruefAufgaben_ / 2);
    PicUetyp(1).visible = true;
    TeststandZeigen(true);
    PruefungAnzeigen();
}

void Arbeitsblatt::PruefungAnzeigen() {
    stop_uhr.caption = Wort(461) + std::to_string(restZeit_ / 60) + " " + Wort(394) +
                       std::to_string(restZeit_ % 60) + " " + Wort(480);
    lab_aufgaben.caption = Wort(462) + " " + std::to_string(restAufgaben_);
}

void Arbeitsblatt::TeststandZeigen(bool sichtbar) {
    stop_uhr.visible = sichtbar;
    lab_aufgaben.visible = sichtbar;
    cmd_test_aus.visible = sichtbar;
    cmd_test_ein.visible = !sichtbar;
}

void Arbeitsblatt::MatWahl() {
    guard("MatWahl.", [this] {
        wahl_.Ziehen(matboxanz.floodPercent());
        z.AntwDau = 0;
        z.punkte = 0;
        z.FalschSkala.fill(0);
        z.whlgAnz = z.whlg_anz = 0;
        ergebnis.caption = "";
        ergebnis.backColour = colours::black;
        z.antwort_nr = 1;
        wertung_.xml.LektionNeu(p.katalog.skal_name[z.skal_typ][z.skala_nr]);
        vorfuehrung().AufgabeBeginnt();
        AufgabeZeigen();
        ereignis(Ereignis::AufgabeGezogen);
        vorfuehrung().Vorfuehren();
    });
}

void Arbeitsblatt::AntwortZulassen() {
    AntwortenOeffnen();
    z.AntwDauStart = p.ports.loop.clock();
    ereignis(Ereignis::AntwortOffen);
}

void Arbeitsblatt::AntwortWerten(const Antwort& antwort) {
    letzteAntwort_ = antwort;
    z.antw_ende = p.ports.loop.clock();
    z.AntwDau = antwortDauer(z.antw_ende, z.AntwDauStart, z.AntwDau);
    letzteAntwort_.dauer = z.AntwDau;
    if (!wertung_.xml.antwort()) wertung_.xml.AntwortNeu(wertung_.xml.lektion(), z.antwort_nr);
    const auto node = wertung_.xml.AntwortSchluss();
    wertung_.xml.AntwortEigenschaft(node, "Antwort", antwort.richtig ? "true" : "false");
    AntwortVermerken(node, antwort);
    if (antwort.richtig)
        RichtigeAntwort();
    else
        FalscheAntwort(antwort);
    ereignis(Ereignis::Geantwortet);
    if (aufgZustand_ != AufgZustand::Weiter) ereignis(Ereignis::Geschlossen);
    NachAntwort();
}

void Arbeitsblatt::RichtigeAntwort() {
    ergebnis.backColour = colours::black;
    ergebnis.foreColour = colours::green;
    ergebnis.caption = Loesung(true);
    hoch(zaehler(0));
    if (z.punkte == 0 && z.uebungsmodus > ausprobieren) {
        z.zeit_faktor = zeitFaktorDerAufgabe();
        z.zeit_malus = ZeitStrafeBerechnen(z.AntwDau, z.zeit_faktor);
        z.punkte = gutschrift;
    }
    AufgabeAbschliessen();
}

void Arbeitsblatt::FalscheAntwort(const Antwort& antwort) {
    // Two wrong answers in a row make the field blink.
    const bool war_rot = ergebnis.backColour() == colours::red;
    ergebnis.backColour = war_rot ? colours::black : colours::red;
    ergebnis.foreColour = war_rot ? colours::red : colours::black;
    hoch(zaehler(1));
    z.punkte += 2;
    FalscheAntwortMerken(antwort);
    if (z.punkte == static_cast<float>(int(fehlerMax_))) {
        ergebnis.caption = Loesung(false);
        LoesungZeigen();
        AufgabeAbschliessen();
        return;
    }
    z.whlg_anz = 0;
    aufgZustand_ = AufgZustand::Weiter;
    z.AntwDau = 0;
    z.AntwDauStart = p.ports.loop.clock();
    ergebnis.caption = Wort(232);
    AntwortSperren(antwort);
    z.antwort_nr += 1;
    VersuchVermerken(wertung_.xml.AntwortNeu(wertung_.xml.lektion(), z.antwort_nr));
}

void Arbeitsblatt::AufgabeAbschliessen() {
    aufgZustand_ = AufgZustand::Geschlossen;
    if (z.uebungsmodus > ausprobieren) {
        letzteWertung_ = FortschrittWerten(z, wertung_, matbox_, fehlerMax_);
        if (z.uebungsmodus <= fortsetzung)
            TrainingWeiter();
        else
            PruefungWeiter();
    }
    AntwortenZuruecksetzen();
}

void Arbeitsblatt::TrainingWeiter() {
    const Trainingsstand stand = TrainingFortschreiben(z, matbox_);
    if (stand != Trainingsstand::Laeuft) {
        aufgZustand_ = AufgZustand::TrainingBeendet;
        ergebnis_anz(0).visible = false;
        ergebnis_anz(stand == Trainingsstand::Ziel ? 1 : 2).visible = true;
    }
    TrainingAnzeigen();
}

void Arbeitsblatt::PruefungWeiter() {
    restAufgaben_ -= 1;
    if (restAufgaben_ == 0) {
        WeiterAnbieten();
        aufgZustand_ = AufgZustand::PruefungBeendet;
    } else if (pruefAufgaben_ / 2 == restAufgaben_) {
        matbox_.MatFuellen(z.richtung);
    }
    PruefungAnzeigen();
}

void Arbeitsblatt::NachAntwort() {
    switch (aufgZustand_) {
        case AufgZustand::Geschlossen:
            vorfuehrung().AufgabeGeschlossen();
            NaechsteAnbieten();
            break;
        case AufgZustand::Weiter:
            break;
        case AufgZustand::TrainingBeendet:
            CmdNextAufg.enabled = false;
            vorfuehrung().LaufBeendet(true);
            WeiterAnbieten();
            TrainingsstandLoeschen();
            ereignis(Ereignis::LaufEnde);
            break;
        case AufgZustand::PruefungBeendet:
            Uhrzeit.stop();
            CmdNextAufg.enabled = false;
            WahlAutomat.stop();
            vorfuehrung().LaufBeendet(false);
            ereignis(Ereignis::LaufEnde);
            break;
    }
}

void Arbeitsblatt::NaechsteAnbieten() {
    if (aufgZustand_ != AufgZustand::Geschlossen) return;
    Weiterschalter(p, naechste(), z.abfrage == 1, z.schalter_frei, false);
}

void Arbeitsblatt::NaechsteZurueckziehen() {
    WahlAutomat.stop();
    if (z.abfrage == 1)
        LbNextAufg.visible = false;
    else
        CmdNextAufg.enabled = false;
}

bool Arbeitsblatt::key(form::Key key) {
    using enum form::Key::Kind;
    const bool zuEnde = aufgZustand_ == AufgZustand::TrainingBeendet ||
                        aufgZustand_ == AufgZustand::PruefungBeendet;
    switch (key.kind) {
        case Space:
            vorfuehrung().Wiederholen();
            return true;
        case Enter:
            if (zuEnde)
                zurueck.click();
            else
                CmdNextAufg.click();
            return true;
        case Escape:
            zurueck.click();
            return true;
        case Digit:
        case Help:
            break;
    }
    return Formular::key(key);
}

}  // namespace engine
