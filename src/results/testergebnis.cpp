#include "results/testergebnis.h"

#include "core/formnamen.h"
#include "core/recap_label.h"
#include "core/wort.h"

#include <cstdlib>

namespace results {

namespace colours = base::colours;
namespace wort = core::wort;

Testergebnis::Testergebnis(core::Programm& programm, Wertung& wertung)
    : Formular(programm, "testergebnis"), wertung_(wertung) {
    start.onTick = {"start_timer.", [this] { start_timer(); }};
    cmdOK.onClick = {"cmdOK_click.", [this] { cmdOK_click(); }};
    cmdPrint.onClick = {"cmdPrint_click.", [this] { cmdPrint_click(); }};
    cmdHilfe.onClick = {"cmdHilfe_click.", [this] { HilfeZeigen(); }};
}

void Testergebnis::start_timer() {
    start.stop();
    Beschriften();
    ZeilenZeigen();
    GewichteZeigen();
    EinstellungenZeigen();
    guard("LbGrdEinst.", [this] { LbGrdEinst(); });
    forms().show(name());
}

void Testergebnis::Beschriften() {
    setCaption(p.katalog.typ_name[z.ueb_typ] + Wort(wort::colon) + p.katalog.bereich_name[2]);
    beschriften({{erg_head, wort::resultsPerScale},
                 {schwach_head, wort::weakestFirst},
                 {einst_head, wort::settings},
                 {grd_einst_head, wort::basicData},
                 {Lab_gesamt, wort::total},
                 {cmdOK, wort::goOn},
                 {cmdPrint, wort::print},
                 {cmdHilfe, wort::help}});
    const bool ab = z.richtung == 1;
    Lab_richtung(0).caption = Wort(ab ? wort::descending : wort::ascending);
    Lab_richtung(1).caption = Wort(wort::descending);
    Lab_richtung(1).visible = z.richtung == 2;
}

/// Ascending rows first; a run of both directions has a second row for each scale.
void Testergebnis::ZeilenZeigen() {
    const int skalen = z.skal_anz + 1;
    const int anzahl = z.richtung == 2 ? 2 * skalen : skalen;
    const int versatz = z.richtung == 1 ? skalen : 0;
    for (int i = 0; i < maxZeilen; ++i) {
        const bool da = i < anzahl;
        for (form::Control* c :
             std::initializer_list<form::Control*>{&Lab_ergeb(i), &ergebnis(i), &balken(i)})
            c->visible = da;
        if (da) ErgebnisZeile(i, i + 1 + versatz, p.katalog.skal_name[z.skal_typ][i % skalen]);
    }
    gesamt.caption =
        gezaehlt_ == 0 ? nichtGezaehlt : prozentText(summe_ / static_cast<float>(gezaehlt_));
    const bool onlyTime =
        gezaehlt_ > 0 && wertung_.wrongAnswers == 0 && summe_ < static_cast<float>(gezaehlt_);
    lost.visible = onlyTime;
    if (onlyTime) lost.caption = Wort(wort::lostForTime);
}

void Testergebnis::ErgebnisZeile(int i, int slot, const std::string& name) {
    Lab_ergeb(i).caption = name;
    const results::ErgebnisZeile zeile = ergebnisZeile(wertung_.auswertung, z, slot);
    ergebnis(i).caption = zeile.zaehlt ? prozentText(zeile.anteil) : nichtGezaehlt;
    balken(i).floodPercent = base::rounded(static_cast<double>(zeile.anteil) * 100);
    balken(i).accessibleName = name;
    balken(i).visible = zeile.zaehlt;
    for (form::Label* label : {&Lab_ergeb(i), &ergebnis(i)}) {
        label->enabled = zeile.zaehlt;
        label->hint = zeile.zaehlt ? std::string() : Wort(wort::notAsked);
    }
    if (!zeile.zaehlt) return;
    summe_ += zeile.anteil;
    ++gezaehlt_;
}

/// The training keeps its scales sorted by weight: what has been missed most stands first.
void Testergebnis::GewichteZeigen() {
    const bool training = core::isTraining(z);
    schwach_cont.visible = training;
    for (int i = 0; i < maxZeilen - 1; ++i) {
        const bool da = training && i + 1 < z.mathaeufgk_box.rows();
        Lab_schwach(i).visible = da;
        gewicht(i).visible = da;
        if (!da) continue;
        const i16 code = z.mathaeufgk_box(i + 1, core::gewicht::spalteCode);
        const char* richtung = z.richtung != 2 ? "" : code > 0 ? "+ " : "- ";
        Lab_schwach(i).caption = richtung + p.katalog.skal_name[z.skal_typ][std::abs(code) - 1];
        const i16 weight = z.mathaeufgk_box(i + 1, core::gewicht::spalteGewicht);
        gewicht(i).caption = weight <= 0
                                 ? Wort(wort::mastered)
                                 : core::eingesetzt(Wort(wort::weightToGo), std::to_string(weight));
    }
}

void Testergebnis::EinstellungenZeigen() {
    const auto& liste = z.einst_liste;
    for (int i = 0; i < maxEinst; ++i) {
        const std::size_t k = 2 * static_cast<std::size_t>(i) + 1;
        const bool da = k + 1 < liste.size();
        einst_lab(i).visible = da;
        einst_Inh(i).visible = da;
        if (!da) continue;
        einst_lab(i).caption = core::recapLabel(liste[k], [&](wort::Id id) { return Wort(id); });
        einst_Inh(i).caption = liste[k + 1];
    }
}

/// When, what, where, and who.
void Testergebnis::LbGrdEinst() {
    int zeile = 0;
    const auto zeigen = [&](const std::string& lab, const std::string& inh) {
        g_einst_lab(zeile).caption = lab;
        g_einst_inh(zeile).caption = inh;
        ++zeile;
    };
    zeigen(Wort(wort::date) + Wort(wort::colon) + " ", p.ports.loop.now().date() + " ");
    zeigen(p.zweig() + Wort(wort::colon), p.katalog.typ_name[z.ueb_typ]);
    zeigen(Wort(wort::user) + Wort(wort::colon) + " ", p.aufruf.rechnername + " ");
    if (z.angemeldet) {
        const core::Value benutzer = p.host.HostBenutzer();
        zeigen(Wort(wort::surnameLabel), benutzer.at(1).text());
        zeigen(Wort(wort::firstNameLabel), benutzer.at(2).text());
        zeigen(Wort(wort::matriculationLabel), benutzer.at(3).text());
    }
    for (int i = 0; i < 6; ++i) {
        g_einst_lab(i).visible = i < zeile;
        g_einst_inh(i).visible = i < zeile;
    }
}

void Testergebnis::cmdOK_click() {
    const std::string einstellung = core::setUpForm(z.theoriewahl);
    if (forms().loaded(einstellung)) forms().show(einstellung);
    forms().hide(name());
    if (!visible()) forms().unload(name());
}

/// The print has no coloured areas, and the form keeps this look afterwards.
void Testergebnis::cmdPrint_click() {
    PicSchalt.visible = false;
    cmdPrint.enabled = false;
    cmdHilfe.enabled = false;
    whiten();
    for (const auto* labels : {&g_einst_lab, &einst_lab, &Lab_richtung, &Lab_ergeb, &ergebnis})
        for (form::Label& label : *labels) label.backColour = colours::white;
    try {
        p.ports.printer.print(*this);
    } catch (const form::PrintFault& fehler) {
        p.Melden("Melvora 2000", fehler.noPrinter()
                                     ? Wort(wort::noPrinter)
                                     : core::eingesetzt(Wort(wort::printerRefuses), fehler.what()));
    }
    PicSchalt.backColour = colours::white;
    PicSchalt.visible = true;
}

bool Testergebnis::key(form::Key key) {
    if (key.kind != form::Key::Kind::Enter && key.kind != form::Key::Kind::Escape)
        return Formular::key(key);
    cmdOK.click();
    return true;
}

std::vector<Testergebnis::Zeile> Testergebnis::zeilen() const {
    std::vector<Zeile> alle;
    for (int i = 0; i < maxZeilen; ++i)
        if (Lab_ergeb(i).visible()) alle.push_back({Lab_ergeb(i).caption(), ergebnis(i).caption()});
    return alle;
}

}  // namespace results
