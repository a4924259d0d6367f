#include "staff/schreib_blatt.h"

#include "base/whole_file.h"
#include "staff/rtf.h"
#include "staff/tonname.h"

#include <array>
#include <exception>

namespace staff {

namespace {

/// A hint is a page of text.
constexpr std::size_t groessterHinweis = 1 << 18;
/// Above this note the staff of a run begins as treble.
constexpr int mitte = 66;
constexpr int anwesendImTest = 6;
constexpr int tetrachorde = 6;

}  // namespace

SchreibBlatt::SchreibBlatt(core::Programm& programm, sound::Midi& midi, results::Wertung& wertung,
                           std::string name)
    : Arbeitsblatt(programm, midi, wertung, std::move(name),
                   [](core::Zustand& zustand, base::Rnd& rnd, engine::Aufgabe& aufgabe) {
                       return std::make_unique<KreisTonart>(zustand, rnd, aufgabe,
                                                            KreisTonart::Art::Schreiben);
                   }),
      zeile_(*this),
      palette_(*this, zeile_.PicBNot),
      eingabe_(zeile_),
      tasten_(zeile_, eingabe_, palette_),
      tonarten_(z, p.rnd) {
    palette_.pbNoten.setContainer(PicArb2);
    zeile_.PicBNot.setContainer(PicArb2);
    zeile_.PicBNot.beschreibung = [this] { return beschreibung(); };
    eingabe_.abgelegt = [this] { cmdOK.enabled = true; };
    cmdOK.onClick = {"cmdOK_click.", [this] { cmdOK_click(); }};
    cmdOK.enabled = false;
    matbox_.zeileGefuellt = [this](int zeile) { tonarten_.fuellen(zeile, pruefAufgaben() / 2); };
    geschlossen_ = ereignis.connect([this](Ereignis turn) {
        if (turn == Ereignis::Geschlossen) HinweisMeldung.visible = false;
    });
}

void SchreibBlatt::AntwortenVorbereiten() {
    beschriften({{cmdOK, 801}, {tasten, 879}});
    benennen({{zeile_.PicBNot, 880}, {HinweisMeldung, 887}});
    constexpr std::array zeichenWorte{881, 882, 883, 884, 885};  // words
    for (int i = 0; i < quelle::anzahl; ++i)
        palette_.NotP(i).accessibleName = Wort(zeichenWorte.at(static_cast<std::size_t>(i)));
    palette_.PaletteMalen();
    zeile_.setzeSchluessel(z.FrquMaxAkt > mitte ? 0 : 1);
    zeile_.NotenzeileAufbauen(a.tonAnz, {0, 0, 0, z.FrquMinAkt, z.FrquMaxAkt});
    if (z.uebungsmodus > core::modus::fortsetzung) matbox_.anwesendSpalte = anwesendImTest;
    HinweisLaden();
}

void SchreibBlatt::HinweisLaden() {
    const std::string& sprache = Wort(705);
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

void SchreibBlatt::AufgabeZeigen() {
    erwartung_ = {.toene = {},
                  .tonAnz = a.tonAnz,
                  .abfolge = z.abfolge,
                  .akt_richtung = z.akt_richtung,
                  .ton_abfolg = a.ton_abfolg};
    for (int k = 0; k < a.tonAnz; ++k) erwartung_.toene[k] = {a.noten[k], a.notenQz[k]};
    zeile_.SchluesselWahl(a.noten[a.tonAnz - 1]);
    zeile_.NotenzeileAufbauen(a.tonAnz,
                              {a.quintLage, ersterTon(), a.transpLage, z.FrquMinAkt, z.FrquMaxAkt});
    eingabe_.AufgabeBeginnt();
    tasten_.AufgabeBeginnt();
    NotenZeigen(zeile_, erwartung_);
    zeile_.GrenzLinienMalen();
}

void SchreibBlatt::AntwortenOeffnen() {
    palette_.PaletteEin();
    cmdOK.enabled = true;
}

/// A form that is being left shows what stood there to the end.
void SchreibBlatt::AntwortenSchliessen() {
    if (abbruch()) return;
    palette_.PaletteAus();
    cmdOK.enabled = false;
}

void SchreibBlatt::cmdOK_click() {
    if (abbruch()) return;
    cmdOK.enabled = false;
    handle({"skal_antw_click.", [this] { skal_antw(); }});
}

void SchreibBlatt::skal_antw() {
    for (int c = 0; c < a.tonAnz; ++c) eigeneFassung_[c] = zeile_.NotSelb(c).midi;
    const int falschTon = falscheSpalten(zeile_, erwartung_);
    AntwortWerten({falschTon, falschTon == 0, p.katalog.skal_name[z.skal_typ][z.skala_nr]});
}

void SchreibBlatt::AntwortVermerken(pugi::xml_node node, const Antwort& antwort) {
    if (antwort.richtig) return;
    const int platz = static_cast<int>(z.punkte) / 2 + 1;
    wertung_.xml.AntwortEigenschaft(node, "FalschSkala", std::to_string(z.FalschSkala[platz]));
}

void SchreibBlatt::VersuchVermerken(pugi::xml_node node) {
    wertung_.xml.AntwortEigenschaft(node, "Skala", "1");
}

std::string SchreibBlatt::Loesung(bool) const {
    if (z.skal_typ == tetrachorde && z.ska_ausw != 0) return ergebnis.caption();
    return p.katalog.skal_name[z.skal_typ][z.skala_nr];
}

void SchreibBlatt::LoesungZeigen() { staff::LoesungZeigen(zeile_, erwartung_); }

i16 SchreibBlatt::zeitFaktorDerAufgabe() const {
    return zeitFaktor() * vorzeichenAnzahl(a.quintLage, ersterTon());
}

/// The notes in words, and what stands under the hand.
std::string SchreibBlatt::beschreibung() {
    std::string text;
    for (int c = 0; c < a.tonAnz; ++c)
        if (zeile_.NotSelb(c).hatNote())
            text += (c == 0 ? "" : ", ") + tonname(p.worte, zeile_.NotSelb(c).qz);
    const i16 hier = tasten_.spalte();
    if (!zeile_.NotSelb(hier).hatNote()) return text;
    return std::to_string(hier) + ": " + tonname(p.worte, zeile_.NotSelb(hier).qz) + " (" + text +
           ")";
}

bool SchreibBlatt::key(form::Key key) {
    if (key.kind == form::Key::Kind::Enter && cmdOK.usable()) {
        cmdOK.click();
        return true;
    }
    return Arbeitsblatt::key(key);
}

}  // namespace staff
