#include "worksheets/noten_feld.h"

#include "base/whole_file.h"
#include "core/wort.h"
#include "staff/farbe.h"
#include "staff/tonname.h"
#include "worksheets/rtf.h"

#include <array>
#include <exception>

namespace worksheets {

namespace wort = core::wort;

namespace {

/// A hint is a page of text.
constexpr std::size_t groessterHinweis = 1 << 18;

}  // namespace

NotenFeld::NotenFeld(core::Formular& form, core::Programm& programm, const engine::Lauf& lauf,
                     form::Control& seite, form::Control& bereich, const bool& verlassen)
    : form_(form),
      p(programm),
      z(programm.zustand),
      lauf_(lauf),
      verlassen_(verlassen),
      bild_(form, programm, bereich),
      palette_(form, bild_.zeile.PicBNot),
      eingabe_(bild_.zeile),
      tasten_(bild_.zeile, eingabe_, palette_),
      cmdOK(form, {"cmdOK", &bereich}),
      HinweisMeldung(form, {"HinweisMeldung", &bereich}, form::TextBox::Size::Rich) {
    palette_.pbNoten.setContainer(bereich);
    bild_.zeile.PicBNot.beschreibung = [this] { return beschreibung(); };
    eingabe_.abgelegt = [this] { cmdOK.enabled = true; };
    cmdOK.onClick = {"cmdOK_click.", [this] { cmdOK_click(); }};
    cmdOK.enabled = false;
    if (lauf.uebung().klingt()) return;
    Label2 = std::make_unique<form::Label>(form, form::Place{"Label2", &seite});
    aufg = std::make_unique<form::Label>(form, form::Place{"aufg", &seite});
}

void NotenFeld::vorbereiten() {
    form_.beschriften({{cmdOK, wort::done}});
    form_.benennen({{HinweisMeldung, wort::hint}});
    constexpr std::array zeichenWorte{wort::doubleFlat, wort::flat, wort::natural, wort::sharp,
                                      wort::doubleSharp};
    for (int i = 0; i < staff::quelle::anzahl; ++i)
        palette_.NotP(i).accessibleName = p.Wort(base::at(zeichenWorte, i));
    palette_.PaletteMalen();
    bild_.vorbereiten(core::katalog::kategorie(z.skal_typ).tonAnz, false);
    HinweisLaden();
    if (!aufg) return;
    form_.beschriften({{*Label2, wort::writeThisScale}});
    aufg->caption = "";
}

void NotenFeld::HinweisLaden() {
    const std::string& sprache = p.Wort(wort::languageCode);
    const std::string pfad = p.aufruf.programmOrdner + "/zepha9/txt_" + sprache +
                             "/tb05_schreibenSkal_" + sprache + ".rtf";
    HinweisMeldung.visible = false;
    try {
        HinweisMeldung.text = rtfAlsHtml(base::readWhole(pfad, groessterHinweis));
        HinweisMeldung.visible = true;
    } catch (const std::exception&) {
        return;  // without its text there is no hint
    }
}

void NotenFeld::zeigen(const engine::Aufgabe& a) {
    bild_.aufbauen(a, false);
    eingabe_.AufgabeBeginnt();
    tasten_.AufgabeBeginnt();
    for (int c = 0; c < a.tonAnz; ++c)
        bild_.zeile.NoteSetzen(c, a.gezeigt(a.index(c)), staff::farbe::schwarz);
    bild_.zeile.GrenzLinienMalen();
    if (aufg) aufg->caption = p.katalog.skal_name[z.skal_typ][a.skala_nr];
}

void NotenFeld::oeffnen() {
    palette_.PaletteEin();
    cmdOK.enabled = true;
}

/// A form that is being left shows what stood there to the end.
void NotenFeld::schliessen() {
    if (verlassen_) return;
    palette_.PaletteAus();
    cmdOK.enabled = false;
}

void NotenFeld::cmdOK_click() {
    if (verlassen_) return;
    cmdOK.enabled = false;
    form_.handle({"skal_antw_click.", [this] { skal_antw(); }});
}

void NotenFeld::skal_antw() {
    const engine::Aufgabe& a = lauf_.aufgabe();
    for (int c = 0; c < a.tonAnz; ++c) eigeneFassung_[c] = bild_.zeile.NotSelb(c).midi;
    geben(engine::geschrieben(a, [this](int c) { return bild_.zeile.NotSelb(c).ton(); }));
}

void NotenFeld::gewertet(const engine::Lauf& lauf) {
    if (lauf.aufgZustand() == engine::AufgZustand::Weiter) return;
    if (!lauf.letzteAntwort().richtig) LoesungZeigen(lauf.aufgabe());
    schliessen();
    HinweisMeldung.visible = false;
}

/// The right notes with red heads in place of the wrong ones; right ones turn black.
void NotenFeld::LoesungZeigen(const engine::Aufgabe& a) {
    staff::Notenzeile& zeile = bild_.zeile;
    for (int c = 1; c <= a.tonAnz - 2; ++c) {
        const core::Ton ton = a.tonAn(c);
        zeile.NoteSetzen(c, ton,
                         zeile.NotSelb(c).ton() == ton ? staff::farbe::schwarz : staff::farbe::rot);
    }
}

/// The notes in words, and what stands under the hand.
std::string NotenFeld::beschreibung() const {
    std::string text = bild_.beschreibung();
    const i16 hier = tasten_.spalte();
    const staff::Spalte& note = bild_.zeile.NotSelb(hier);
    if (!note.hatNote()) return text;
    return std::to_string(hier) + ": " + staff::tonname(p.worte, note.qz) + " (" + text + ")";
}

bool NotenFeld::key(form::Key key) {
    if (key.kind != form::Key::Kind::Enter || !cmdOK.usable()) return false;
    cmdOK.click();
    return true;
}

}  // namespace worksheets
