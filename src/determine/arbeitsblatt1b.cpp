#include "determine/arbeitsblatt1b.h"

#include "staff/farbe.h"
#include "staff/kreistonart.h"
#include "staff/tonname.h"

namespace determine {

using staff::KreisTonart;

Arbeitsblatt1b::Arbeitsblatt1b(core::Programm& programm, sound::Midi& midi,
                               results::Wertung& wertung)
    : BestimmenBlatt(programm, midi, wertung, "arbeitsblatt1b",
                     [](core::Zustand& zustand, base::Rnd& rnd, engine::Aufgabe& aufgabe) {
                         return std::make_unique<KreisTonart>(zustand, rnd, aufgabe,
                                                              KreisTonart::Art::Bestimmen);
                     }) {
    setCaption("Skalen bestimmen");
    AntwortenVerbinden();
    zeile_.PicBNot.setContainer(PicArb2);
    zeile_.PicBNot.beschreibung = [this] { return beschreibung(); };
    schrittmarken.enabled = false;
    schrittmarken.onClick = {"schrittmarken_click.", [this] {
                                 schrittmarken.enabled = false;
                                 zeile_.SchritteMalen();
                             }};
    geschlossen_ = ereignis.connect([this](Ereignis turn) {
        if (turn == Ereignis::Geschlossen) schrittmarken.enabled = true;
        if (turn == Ereignis::LaufEnde && abbruch()) schrittmarken.enabled = false;
    });
}

void Arbeitsblatt1b::AntwortenVorbereiten() {
    BestimmenBlatt::AntwortenVorbereiten();
    beschriften({{schrittmarken, 827}, {tasten, 886}});
    benennen({{zeile_.PicBNot, 880}});
    zeile_.setzeSchluessel(z.FrquMaxAkt > 66 ? 0 : 1);
    zeile_.NotenzeileAufbauen(a.tonAnz, {0, 0, 0, z.FrquMinAkt, z.FrquMaxAkt}, i16(0));
}

void Arbeitsblatt1b::AufgabeZeigen() {
    schrittmarken.enabled = false;
    zeile_.SchluesselWahl(a.noten[a.tonAnz - 1]);
    zeile_.NotenzeileAufbauen(a.tonAnz,
                              {a.quintLage, KreisTonart::stufenQz(z.skal_typ, z.skala_nr),
                               a.transpLage, z.FrquMinAkt, z.FrquMaxAkt},
                              a.quintLage);
    for (int c = 0; c < a.tonAnz; ++c) {
        const int auf = z.akt_richtung == 1 ? c : int(a.tonAnz) - 1 - c;
        const int k = z.abfolge == 1 ? int(a.ton_abfolg[c]) : auf;
        zeile_.NoteSetzen(c, {a.noten[k], a.notenQz[k]}, staff::farbe::schwarz);
    }
}

std::string Arbeitsblatt1b::beschreibung() {
    std::string text;
    for (int c = 0; c < a.tonAnz; ++c)
        if (zeile_.NotSelb(c).hatNote())
            text += (c == 0 ? "" : ", ") + staff::tonname(p.worte, zeile_.NotSelb(c).qz);
    return text;
}

}  // namespace determine
