#include "worksheets/namen_feld.h"

#include "core/wort.h"
#include "staff/farbe.h"

#include <cstdlib>

namespace worksheets {

namespace {

constexpr base::Colour offenFarbe = base::rgb(128, 255, 128);

}  // namespace

NamenFeld::NamenFeld(core::Formular& form, core::Programm& programm, const engine::Lauf& lauf,
                     form::Control& seite, form::Control& bereich, const bool& verlassen)
    : form_(form),
      p(programm),
      z(programm.zustand),
      lauf_(lauf),
      verlassen_(verlassen),
      tonarten(form, {"tonarten", &bereich}),
      tonart(form, "tonart", maxAntworten, &bereich),
      skal_pan(form, "skal_pan", maxAntworten, &bereich),
      ton_art(form, "ton_art", maxAntworten, &bereich),
      skal_bez(form, "skal_bez", maxAntworten, &bereich),
      ziffer(form, "ziffer", maxAntworten, &bereich) {
    for (int i = 0; i < maxAntworten; ++i) {
        const form::Handler antwort{"skal_antw_click.", [this, i] { skal_antw(i); }};
        ton_art(i).onClick = antwort;
        tonart(i).onClick = antwort;
        // Closed from the first moment on, before the run is ready.
        ton_art(i).enabled = false;
        tonart(i).enabled = false;
    }
    if (lauf.uebung().klingt()) return;
    bild_ = std::make_unique<Notenbild>(form, programm, bereich);
    schrittmarken = std::make_unique<form::Button>(form, form::Place{"schrittmarken", &seite});
    schrittmarken->enabled = false;
    schrittmarken->onClick = {"schrittmarken_click.", [this] {
                                  schrittmarken->enabled = false;
                                  bild_->zeile.SchritteMalen();
                              }};
}

bool NamenFeld::gewaehlt(int Index) const {
    if (Index > z.skal_anz) return false;
    if (z.ska_ausw == 0) return true;
    for (int k = 0; k <= z.einzelAnz; ++k)
        if (std::abs(z.einzel_wahl[k]) == Index + 1) return true;
    return false;
}

void NamenFeld::vorbereiten() {
    const auto& kategorie = core::katalog::kategorie(z.skal_typ);
    const int basis = kategorie.bild_basis[z.final == 1 ? 0 : 1];
    const bool bilder = z.an_zeig == 0;
    tonarten.caption = p.katalog.skal_typ_name[z.skal_typ];
    int taste = 0;
    for (int i = 0; i < maxAntworten; ++i) {
        const bool da = gewaehlt(i);
        if (i <= z.skal_anz) {
            const std::string& name = p.katalog.skal_name[z.skal_typ][i];
            skal_bez(i).caption = name;
            tonart(i).caption = name;
            ton_art(i).accessibleName = name;
            ton_art(i).picture = basis + i;
        }
        tonart(i).visible = da && !bilder;
        for (form::Control* c :
             std::initializer_list<form::Control*>{&skal_bez(i), &skal_pan(i), &ton_art(i)})
            c->visible = da && bilder;
        ziffer(i).visible = da;
        if (da) ziffer(i).caption = std::to_string(++taste % 10);
    }
    alleSchliessen();
    if (!bild_) return;
    form_.beschriften({{*schrittmarken, core::wort::stepMarks}});
    bild_->vorbereiten(kategorie.tonAnz, true);
}

/// The scale stands on the staff, in the order in which it is to be read.
void NamenFeld::zeigen(const engine::Aufgabe& a) {
    if (!bild_) return;
    schrittmarken->enabled = false;
    bild_->aufbauen(a, true);
    for (int c = 0; c < a.tonAnz; ++c)
        bild_->zeile.NoteSetzen(c, a.tonAn(c), staff::farbe::schwarz);
}

void NamenFeld::oeffnen(int i, bool offen) {
    tonart(i).enabled = offen;
    ton_art(i).enabled = offen;
    skal_pan(i).backColour = offen ? offenFarbe : base::colours::red;
    ton_art(i).backColour = offen ? offenFarbe : base::colours::grey;
}

/// Those that were not tried on this task.
void NamenFeld::oeffnen() {
    for (int i = 0; i <= z.skal_anz; ++i)
        if (gewaehlt(i) && !base::at(gesperrt_, i)) oeffnen(i, true);
}

void NamenFeld::alleSchliessen() {
    for (int i = 0; i < maxAntworten; ++i) oeffnen(i, false);
}

void NamenFeld::schliessen() {
    alleSchliessen();
    if (verlassen_ && schrittmarken) schrittmarken->enabled = false;
}

/// A wrong answer stays locked until the task is closed.
void NamenFeld::gewertet(const engine::Lauf& lauf) {
    if (lauf.aufgZustand() == engine::AufgZustand::Weiter) {
        const int falsch = lauf.letzteAntwort().index;
        base::at(gesperrt_, falsch) = true;
        oeffnen(falsch, false);
        return;
    }
    gesperrt_.fill(false);
    alleSchliessen();
    if (schrittmarken) schrittmarken->enabled = true;
}

void NamenFeld::skal_antw(int Index) { geben(engine::benannt(lauf_.aufgabe(), Index)); }

bool NamenFeld::key(form::Key key) {
    if (key.kind != form::Key::Kind::Digit) return false;
    const std::string taste = std::to_string(key.digit);
    for (int i = 0; i < maxAntworten; ++i)
        if (ziffer(i).visible() && ziffer(i).caption() == taste) {
            tonart(i).click();
            ton_art(i).click();
            return true;
        }
    return false;
}

}  // namespace worksheets
