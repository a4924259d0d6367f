// The end of a run: the exam clock, leaving, and what is kept.
#include "base/rounding.h"
#include "core/fortsetzung.h"
#include "engine/arbeitsblatt.h"
#include "engine/trainingsstand.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace engine {

namespace colours = base::colours;

std::string Arbeitsblatt::einstellungsform() const {
    return z.theoriewahl == 0 ? "einstellung1" : "einstellung1b";
}

/// The way out becomes the way on.
void Arbeitsblatt::WeiterAnbieten() {
    zurueck.backColour = colours::yellow;
    zurueck.caption = Wort(625);
    zurueck.foreColour = colours::red;
}

/// A training that has ended leaves nothing to continue.
void Arbeitsblatt::TrainingsstandLoeschen() {
    setPointer(form::Pointer::Hourglass);
    p.host.HostSichern("A" + core::satz(z), core::Value::Array{"False"});
    core::FortsetzungAnbieten(p, einstellungsform(), false, core::modus::training);
    setPointer(form::Pointer::Arrow);
}

void Arbeitsblatt::Uhrzeit_timer() {
    Uhr.caption = p.ports.loop.now().timeOfDay();
    if (z.uebungsmodus > core::modus::fortsetzung) ZeitAbzaehlen();
}

void Arbeitsblatt::ZeitAbzaehlen() {
    restZeit_ -= 10;
    PruefungAnzeigen();
    ereignis(Ereignis::Uhr);
    if (restZeit_ > 0 || verlassen_) return;
    verlassen_ = true;
    Stilllegen();
    ereignis(Ereignis::LaufEnde);
    SatzSichern();
    ErgebnisZeigen();
    Heimkehren();
}

/// From here on nothing goes on by itself.
void Arbeitsblatt::Stilllegen() {
    zurueck.enabled = false;
    abbruch_ = true;
    for (form::Timer* timer : {&Uhrzeit, &WahlAutomat, &start}) timer->stop();
    CmdNextAufg.enabled = false;
    AntwortenSchliessen();
    vorfuehrung().Verlassen();
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
    if (aufgZustand_ == AufgZustand::TrainingBeendet ||
        aufgZustand_ == AufgZustand::PruefungBeendet) {
        zurueck.backColour = colours::magenta;
        zurueck.caption = Wort(640);
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
    const bool imTraining =
        z.uebungsmodus == core::modus::training || z.uebungsmodus == core::modus::fortsetzung;
    if (zurueck.tag != "OK" || !imTraining || z.schalter_frei <= 0) return;
    if (!p.ports.dialogs.askYesNo(Wort(8), Wort(495))) return;
    setPointer(form::Pointer::Hourglass);
    core::FortsetzungAnbieten(p, einstellungsform(), TrainingSichern(), z.uebungsmodus);
    setPointer(form::Pointer::Arrow);
}

/// What an older training left is taken back first: whatever fails in between, settings and state
/// that do not belong together are never offered. @return whether both were stored.
bool Arbeitsblatt::TrainingSichern() {
    z.abbruch_stand = TrainingsstandSchreiben(
        z, wertung_.auswertung,
        {base::leadingInt(zaehler(0).caption()), base::leadingInt(zaehler(1).caption()),
         vorfuehrung().wiederholungen()});
    const std::string satz = core::satz(z);
    return p.host.HostSichern("A" + satz, core::Value::Array{"False"}) &&
           p.host.HostSichern("E" + satz, z.gelesen_e) &&
           p.host.HostSichern("A" + satz, z.abbruch_stand);
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
        wertung_.xml.SkalaXmlSichern(z.einst_liste);
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
    zurueck.tag = "ERROR";
    // A training that cannot be gone on with is not offered once more.
    if (prozedur == tragende.front() && z.uebungsmodus == core::modus::fortsetzung)
        core::FortsetzungAnbieten(p, einstellungsform(), false, core::modus::training);
    zurueck_click();
}

}  // namespace engine
