#include "worksheets/arbeitsblatt.h"

#include "core/formnamen.h"
#include "core/fortsetzung.h"
#include "core/wort.h"
#include "worksheets/namen_feld.h"
#include "worksheets/noten_feld.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace worksheets {

namespace colours = base::colours;
using engine::AufgZustand;
namespace wort = core::wort;

namespace {

constexpr int tetrachorde = 6;
/// Which keys do what, by whether a scale is written and whether it sounds.
constexpr std::array<std::array<wort::Id, 2>, 2> tastenWorte{
    {{wort::identifySilentKeys, wort::identifyKeys}, {wort::writeSilentKeys, wort::writeKeys}}};

}  // namespace

Arbeitsblatt::Arbeitsblatt(core::Programm& programm, sound::Midi& midi, results::Wertung& wertung,
                           results::Skalaxml& xml, const engine::Uebung& uebung)
    : Formular(programm, uebung.blatt),
      midi_(midi),
      xml_(xml),
      protokoll_(xml, programm.katalog, programm.zustand, uebung),
      lauf_(programm.zustand, programm.rnd, wertung, uebung, &protokoll_) {
    setCaption(uebung.titel);
    CmdNextAufg.onClick = {"CmdNextAufg_click.", [this] {
                               CmdNextAufg.enabled = false;
                               MatWahl();
                           }};
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

    NotenFeld* schrift = nullptr;
    if (uebung.schriftlich()) {
        auto feld = std::make_unique<NotenFeld>(*this, p, lauf_, PicArb1, PicArb2, abbruch_);
        schrift = feld.get();
        zeile_ = &feld->notenzeile();
        feld_ = std::move(feld);
    } else {
        auto feld = std::make_unique<NamenFeld>(*this, p, lauf_, PicArb1, PicArb2, abbruch_);
        zeile_ = feld->notenzeile();
        feld_ = std::move(feld);
    }
    feld_->geben = [this](const engine::Antwort& antwort) { AntwortWerten(antwort); };
    if (!uebung.klingt()) return;
    klang_.emplace(*this, p, midi, PicArb1);
    if (schrift) klang_->EigeneFassungAnbieten([schrift] { return schrift->eigeneFassung(); });
}

Arbeitsblatt::~Arbeitsblatt() = default;

/// Only the first activation of a form begins its run.
void Arbeitsblatt::activate() {
    if (begonnen_) return;
    begonnen_ = true;
    start.start();
}

void Arbeitsblatt::Beschriften() {
    const engine::Uebung& uebung = lauf_.uebung();
    beschriften({{copyright, wort::copyright},
                 {LbNextAufg, wort::nextTask},
                 {zurueck, wort::back},
                 {true_false(0), wort::right},
                 {true_false(1), wort::wrong},
                 {ergebnis_anz(0), wort::trainingProgress},
                 {ergebnis_anz(1), wort::taskSolved},
                 {ergebnis_anz(2), wort::tooManyErrors},
                 {cmd_test_aus, wort::hideTestStatus},
                 {cmd_test_ein, wort::showTestStatus},
                 {WaitMeld, wort::oneMoment},
                 {tasten, tastenWorte[uebung.schriftlich() ? 1 : 0][uebung.klingt() ? 1 : 0]},
                 {cmdHilfe, wort::help}});
    CmdNextAufg.caption = Wort(wort::task) + " 1";
    LbNextAufg.caption = CmdNextAufg.caption();
    matboxanz.accessibleName = Wort(wort::trainingProgress);
}

void Arbeitsblatt::start_timer() {
    start.stop();
    setPointer(form::Pointer::Hourglass);
    abbruch_ = false;
    setCaption(p.katalog.typ_name[z.ueb_typ]);
    Beschriften();
    forms().show(name());

    lauf_.beginnen({.vorfuehrung = klang_ ? klang_->dauer() : 0, .wechsel = wechselzeit},
                   p.ports.saat);
    feld_->vorbereiten();
    if (klang_) klang_->LaufBeginn();
    if (z.uebungsmodus == core::modus::fortsetzung) TrainingAufnehmen();
    ModusZeigen();
    StandZeigen();

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

void Arbeitsblatt::TrainingAufnehmen() {
    if (!p.host.LeseAbbruch("A" + core::satz(z)))
        throw base::RuntimeError(base::ErrorNumber::InvalidCall, "saved training: not there");
    lauf_.aufnehmen(z.gelesen_a);
}

void Arbeitsblatt::ModusZeigen() {
    PicUetyp(0).visible = core::imTraining(z);
    PicUetyp(1).visible = core::imTest(z);
    for (const int i : {1, 2}) ergebnis_anz(i).visible = false;
    if (core::imTest(z)) TeststandZeigen(true);
}

/// Everything that the run says of itself in figures.
void Arbeitsblatt::StandZeigen() {
    const engine::Stand& stand = lauf_.stand();
    zaehler(0).caption = std::to_string(stand.zaehler.richtig);
    zaehler(1).caption = std::to_string(stand.zaehler.falsch);
    if (klang_) klang_->WiederholungenZeigen(stand.zaehler.wiederholungen);
    if (core::imTraining(z)) {
        const engine::Matbox& box = lauf_.matbox();
        matboxanz.floodPercent = box.prozent();
        matboxanz.hint =
            core::eingesetzt(Wort(wort::pointsToGoal), std::to_string(box.matbox_zahl()),
                             std::to_string(box.obergrenze()));
    }
    if (core::imTest(z)) {
        stop_uhr.caption = Wort(wort::timeLeft) + std::to_string(stand.restZeit / 60) + " " +
                           Wort(wort::minutes) + std::to_string(stand.restZeit % 60) + " " +
                           Wort(wort::seconds);
        lab_aufgaben.caption = Wort(wort::tasksLeft) + " " + std::to_string(stand.restAufgaben);
    }
}

void Arbeitsblatt::TeststandZeigen(bool sichtbar) {
    stop_uhr.visible = sichtbar;
    lab_aufgaben.visible = sichtbar;
    cmd_test_aus.visible = sichtbar;
    cmd_test_ein.visible = !sichtbar;
}

void Arbeitsblatt::MatWahl() {
    guard("MatWahl.", [this] {
        const engine::Aufgabe& a = lauf_.ziehen();
        rot_ = false;
        ergebnis.caption = "";
        ergebnis.backColour = colours::black;
        if (klang_) klang_->AufgabeBeginnt();
        feld_->zeigen(a);
        ereignis(Ereignis::AufgabeGezogen);
        if (klang_)
            klang_->Vorfuehren();
        else
            AntwortZulassen();
    });
}

void Arbeitsblatt::AntwortZulassen() {
    feld_->oeffnen();
    lauf_.antwortOffen(p.ports.loop.clock());
    ereignis(Ereignis::AntwortOffen);
}

void Arbeitsblatt::wiederholt() {
    lauf_.wiederholt(p.ports.loop.clock());
    StandZeigen();
}

void Arbeitsblatt::AntwortWerten(const engine::Antwort& antwort) {
    lauf_.werten(antwort, p.ports.loop.clock());
    if (antwort.richtig)
        RichtigZeigen();
    else
        FalschZeigen();
    StandZeigen();
    feld_->gewertet(lauf_);
    ereignis(Ereignis::Geantwortet);
    if (lauf_.aufgZustand() != AufgZustand::Weiter) ereignis(Ereignis::Geschlossen);
    NachAntwort();
}

void Arbeitsblatt::RichtigZeigen() {
    ergebnis.backColour = colours::black;
    ergebnis.foreColour = colours::green;
    ergebnis.caption = Loesung();
}

/// Two wrong answers in a row make the field blink.
void Arbeitsblatt::FalschZeigen() {
    rot_ = !rot_;
    ergebnis.backColour = rot_ ? colours::red : colours::black;
    ergebnis.foreColour = rot_ ? colours::black : colours::red;
    ergebnis.caption = lauf_.aufgZustand() == AufgZustand::Weiter ? Wort(wort::wrong) : Loesung();
}

/// The name of the scale that was asked for. Where the learner named it, with what it is half of,
/// or with its direction after a right answer.
std::string Arbeitsblatt::Loesung() const {
    const engine::Aufgabe& a = lauf_.aufgabe();
    const std::string& name = p.katalog.skal_name[z.skal_typ][a.skala_nr];
    const bool auf = a.akt_richtung == 1;
    if (lauf_.uebung().schriftlich()) return name;
    if (z.skal_typ == tetrachorde && z.ska_ausw != 0)
        return name + p.katalog.tetra_name[a.skala_nr][auf ? 0 : 1];
    if (lauf_.letzteAntwort().richtig && z.abfolge == 0 && z.richtung == 2)
        return p.Wort(auf ? wort::ascending : wort::descending) + " " + name;
    return name;
}

void Arbeitsblatt::NachAntwort() {
    switch (lauf_.aufgZustand()) {
        case AufgZustand::Geschlossen:
            if (klang_) klang_->AufgabeGeschlossen();
            Weiterschalter();
            break;
        case AufgZustand::Offen:
        case AufgZustand::Weiter:
            break;
        case AufgZustand::TrainingBeendet:
            ergebnis_anz(0).visible = false;
            ergebnis_anz(lauf_.zielErreicht() ? 1 : 2).visible = true;
            CmdNextAufg.enabled = false;
            if (klang_) klang_->LaufBeendet(true);
            WeiterAnbieten();
            TrainingsstandLoeschen();
            ereignis(Ereignis::LaufEnde);
            break;
        case AufgZustand::PruefungBeendet:
            Uhrzeit.stop();
            CmdNextAufg.enabled = false;
            WahlAutomat.stop();
            if (klang_) klang_->LaufBeendet(false);
            WeiterAnbieten();
            ereignis(Ereignis::LaufEnde);
            break;
    }
}

void Arbeitsblatt::NaechsteAnbieten() {
    if (lauf_.aufgZustand() == AufgZustand::Geschlossen) Weiterschalter();
}

void Arbeitsblatt::Weiterschalter() {
    if (z.abfrage == 1) {
        LbNextAufg.caption = Wort(wort::nextTask);
        LbNextAufg.visible = true;
        WahlAutomat.start();
    } else {
        CmdNextAufg.caption = Wort(wort::nextTask);
        CmdNextAufg.enabled = true;
    }
}

void Arbeitsblatt::NaechsteZurueckziehen() {
    WahlAutomat.stop();
    if (z.abfrage == 1)
        LbNextAufg.visible = false;
    else
        CmdNextAufg.enabled = false;
}

/// The way out becomes the way on.
void Arbeitsblatt::WeiterAnbieten() {
    zurueck.backColour = colours::yellow;
    zurueck.caption = Wort(wort::goOn);
    zurueck.foreColour = colours::red;
}

bool Arbeitsblatt::key(form::Key key) {
    using enum form::Key::Kind;
    if (feld_->key(key)) return true;
    switch (key.kind) {
        case Space:
            if (klang_) klang_->Wiederholen();
            return true;
        case Enter:
            if (lauf_.zuEnde())
                zurueck.click();
            else
                CmdNextAufg.click();
            return true;
        case Escape:
            zurueck.click();
            return true;
        case Digit:
            return false;
        case Help:
            break;
    }
    return Formular::key(key);
}

void Arbeitsblatt::Uhrzeit_timer() {
    Uhr.caption = p.ports.loop.now().timeOfDay();
    if (!core::imTest(z)) return;
    const bool zeitUm = !lauf_.zehnSekundenUm();
    StandZeigen();
    ereignis(Ereignis::Uhr);
    if (!zeitUm || verlassen_) return;
    verlassen_ = true;
    Stilllegen();
    ereignis(Ereignis::LaufEnde);
    SatzSichern();
    ErgebnisZeigen();
    Heimkehren();
}

// Leaving, and what is kept.

std::string Arbeitsblatt::einstellungsform() const { return core::setUpForm(z.theoriewahl); }

void Arbeitsblatt::FortsetzungAnbieten(bool vorhanden, int gewaehlt) {
    core::FortsetzungAnbieten(p, einstellungsform(), vorhanden, gewaehlt);
}

/// From here on nothing goes on by itself.
void Arbeitsblatt::Stilllegen() {
    zurueck.enabled = false;
    abbruch_ = true;
    for (form::Timer* timer : {&Uhrzeit, &WahlAutomat, &start}) timer->stop();
    CmdNextAufg.enabled = false;
    feld_->schliessen();
    if (klang_) klang_->Verlassen();
}

void Arbeitsblatt::unloading() {
    if (verlassen_) return;
    verlassen_ = true;
    Stilllegen();
}

void Arbeitsblatt::zurueck_click() {
    if (verlassen_) return;
    verlassen_ = true;
    Stilllegen();
    if (lauf_.zuEnde()) {
        zurueck.backColour = colours::magenta;
        zurueck.caption = Wort(wort::back);
        zurueck.foreColour = colours::black;
        ErgebnisZeigen();
    } else {
        ereignis(Ereignis::LaufEnde);
        guard("zurueck_click.", [this] { SichernAnbieten(); });
    }
    SatzSichern();
    Heimkehren();
}

/// A training in which a task was closed may be kept, to go on with another day.
void Arbeitsblatt::SichernAnbieten() {
    if (gescheitert_ || !core::imTraining(z) || !lauf_.stand().schalter_frei) return;
    if (!p.ports.dialogs.askYesNo(Wort(wort::saveTraining), Wort(wort::saveTrainingQuestion)))
        return;
    setPointer(form::Pointer::Hourglass);
    FortsetzungAnbieten(TrainingSichern(), z.uebungsmodus);
    setPointer(form::Pointer::Arrow);
}

/// What an older training left is taken back first: whatever fails in between, settings and state
/// that do not belong together are never offered. @return whether both were stored.
bool Arbeitsblatt::TrainingSichern() {
    z.abbruch_stand = lauf_.sichern();
    const std::string satz = core::satz(z);
    return p.host.HostSichern("A" + satz, core::Value::Array{"False"}) &&
           p.host.HostSichern("E" + satz, z.gelesen_e) &&
           p.host.HostSichern("A" + satz, z.abbruch_stand);
}

/// A training that has ended leaves nothing to continue.
void Arbeitsblatt::TrainingsstandLoeschen() {
    setPointer(form::Pointer::Hourglass);
    p.host.HostSichern("A" + core::satz(z), core::Value::Array{"False"});
    FortsetzungAnbieten(false, core::modus::training);
    setPointer(form::Pointer::Arrow);
}

/// The worksheet stays until the result has come.
void Arbeitsblatt::ErgebnisZeigen() {
    constexpr auto formular = "testergebnis";
    guard("ErgebnisZeigen.", [this] {
        forms().hide(formular);
        midi_.Delay(300);
        form::Form& form = forms().load(formular);
        const form::Connection gekommen = form.changed.connect([&] {
            if (form.visible()) forms().hide(name());
        });
        forms().runModal(formular);
    });
}

/// A record that cannot be written must not keep the learner here: the fault is told, the way goes
/// on.
void Arbeitsblatt::SatzSichern() {
    guard("SkalaXmlSichern.", [this] {
        setEnabled(false);
        WaitMeldung.visible = true;
        p.ports.loop.doEvents();
        xml_.SkalaXmlSichern(z.einst_liste);
    });
    WaitMeldung.visible = false;
}

void Arbeitsblatt::Heimkehren() {
    if (forms().loaded(einstellungsform())) forms().show(einstellungsform());
    forms().unload("testergebnis");
    forms().unload(name());
}

/// A run that cannot go on is left; anything else that fails is told, and the run goes on.
void Arbeitsblatt::nachFehler(const std::string& prozedur) {
    constexpr std::array<std::string_view, 5> tragende{
        "start_timer.", "spieltimer_timer.", "skal_antw_click.", "MatWahl.", "cmdOK_click."};
    if (std::ranges::find(tragende, prozedur) == tragende.end()) return;
    gescheitert_ = true;
    // A training that cannot be gone on with is not offered once more.
    if (prozedur == tragende.front() && z.uebungsmodus == core::modus::fortsetzung)
        FortsetzungAnbieten(false, core::modus::training);
    zurueck_click();
}

}  // namespace worksheets
