#include "core/grd_einst.h"

#include "core/formnamen.h"
#include "core/wort.h"

namespace core {

GrdEinst::GrdEinst(Programm& programm) : Formular(programm, "grd_einst") {
    setCaption("Grundeinstellung:  Skalen");
    Theoriewahl(0).caption = "Gehörbildung";
    Theoriewahl(1).caption = "Musiklehre";
    grdeinst_lb(0).caption = "Übungsart";
    ueb_typ(1).caption = "bestimmen";
    ueb_typ(2).caption = "bilden";
    ueb_typ(3).caption = "spielen";
    ueb_typ(4).caption = "schreiben";
    Kontrolle.caption = "kontrolle: nicht entfernen!!";
    for (form::Control* nie :
         std::initializer_list<form::Control*>{&Kontrolle, &ueb_typ(2), &ueb_typ(3)})
        nie->visible = false;

    // Picking a branch falls back to the exercise that both begin with.
    for (form::Option& option : Theoriewahl)
        option.store = [this, &option] {
            z.theoriewahl = option.index();
            ueb_typ(1).choose();
        };
    for (form::Option& option : ueb_typ)
        option.store = [this, &option] { z.ueb_typ = option.index(); };
    cmdOK.onClick = {"cmdOK_click.", [this] { cmdOK_click(); }};
    cmdEnde.onClick = {"cmdEnde_click.", [this] { cmdEnde_click(); }};
    cmdHilfe.onClick = {"cmdHilfe_click.", [this] { HilfeZeigen(); }};
    start.onTick = {"start_timer.", [this] { start_timer(); }};
    testtimer.onTick = {"cmdOK_click.", [this] {
                            testtimer.stop();
                            cmdOK_click();
                        }};
}

void GrdEinst::load() {
    p.host.HostVerbinden(Host::programm);
    start.start();
}

void GrdEinst::start_timer() {
    start.stop();
    p.worte.SprachenLaden();
    p.worte.SpracheSetzen(p.host.HostSprache());
    p.katalog.KatalogInit(p.worte);
    beschriften({{Theoriewahl(0), wort::earTraining},
                 {Theoriewahl(1), wort::musicTheory},
                 {grdeinst_lb(0), wort::exerciseType},
                 {grdeinst_lb(1), wort::branch},
                 {ueb_typ(1), wort::identify},
                 {ueb_typ(4), wort::write},
                 {cmdOK, wort::ok},
                 {cmdEnde, wort::quit},
                 {cmdHilfe, wort::help}});
    benennen({{grdeinst(0), wort::branch}, {grdeinst(1), wort::exerciseType}});
    z.angemeldet = p.host.HostBenutzer().at(0).text() != "unbekannt";
    setCaption(p.katalog.titelWort + Wort(wort::colon) + p.katalog.bereich_name[0]);
    copyright.caption = Wort(wort::copyright) + " " + Wort(wort::version) + " " + versionText();
    Theoriewahl(0).choose();
    ueb_typ(1).choose();
    int tempo = 0;
    for (const int dauer : katalog::tempo_dauer) z.tempo_dauer[tempo++] = dauer;
    Theoriewahl(1).enabled = forms().knows(setUpForm(1));
    ueb_typ(4).enabled = forms().knows("arbeitsblatt4");
    forms().show(name());
    p.host.HostMeldung(std::string(Host::programm) + "; uebungs_typ=" + std::to_string(z.ueb_typ));
    KommandozeileLesen();
    StartdateiOeffnen();
}

/// With a settings file the way leads straight to the set-up form that it belongs to.
void GrdEinst::StartdateiOeffnen() {
    if (p.aufruf.startdatei.empty()) return;
    ueb_typ(p.aufruf.startTyp).click();
    cmdOK.click();
}

/// The list behind "/P=" is walked through without any effect: old starters still send it.
void GrdEinst::KommandozeileLesen() const {
    const std::string& zeile = p.aufruf.kommandozeile;
    for (auto at = zeile.find("/P="); at != std::string::npos; at = zeile.find(';', at + 1))
        continue;
}

void GrdEinst::cmdOK_click() {
    forms().hide(name());
    forms().load(setUpForm(z.theoriewahl));
}

void GrdEinst::cmdEnde_click() { p.host.HostUebergabe(forms(), "MENUE"); }

bool GrdEinst::key(form::Key key) {
    using enum form::Key::Kind;
    if (key.kind == Enter) cmdOK.click();
    if (key.kind == Escape) cmdEnde.click();
    return key.kind == Enter || key.kind == Escape || Formular::key(key);
}

}  // namespace core
