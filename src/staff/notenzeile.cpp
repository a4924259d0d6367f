#include "staff/notenzeile.h"

#include "staff/farbe.h"
#include "staff/noten.h"

#include <algorithm>
#include <string>

namespace staff {

namespace {

constexpr int zeileHoehe = 144;
constexpr int halterHoehe = 158;
/// Top of the treble and the bass surface in their holder.
constexpr std::array zeileOben{12, 0};

/// y of the lines that the signs of a key signature stand on, in their order.
using Zeichenlinien = std::array<int, 7>;
constexpr std::array kreuzLinien{Zeichenlinien{64, 76, 60, 72, 84, 68, 80},
                                 Zeichenlinien{56, 68, 52, 64, 76, 60, 72}};
constexpr std::array beLinien{Zeichenlinien{80, 68, 84, 72, 88, 76, 92},
                              Zeichenlinien{72, 60, 76, 64, 80, 68, 84}};
constexpr int signaturX = 36;
constexpr int signaturSchritt = 10;

}  // namespace

Notenzeile::Notenzeile(form::Form& form)
    : PicBNot(form, {"PicBNot"}), PicB(form, "PicB", 2, &PicBNot) {
    PicBNot.backColour = base::colours::grey;
    setzeSchluessel(schluessel::violin);
}

void Notenzeile::setzeSchluessel(i16 s) {
    SchlZ_ = s;
    for (const int i : {0, 1}) PicB(i).visible = i == s;
}

void Notenzeile::NotenzeileAufbauen(i16 tonAnz, const Umfang& umfang, std::optional<i16> signatur) {
    mitSignatur_ = signatur.has_value();
    const int vz = signatur.value_or(0);
    tonAnz_ = tonAnz;
    umfang_ = umfang;
    lage_.versatz = signaturSchritt * std::abs(vz);
    const int breite = lage_.breite(tonAnz);
    PicBNot.lage = Rechteck{0, 0, breite, halterHoehe};
    for (const int s : {0, 1})
        PicB(s).lage = Rechteck{0, zeileOben.at(static_cast<std::size_t>(s)), breite, zeileHoehe};
    grenzen_[SchlZ_] = grenzenAuf(SchlZ_, umfang);
    PicBNot.leeren();
    if (!mitSignatur_) SpaltenZiffern();  // columns that are written in
    NotenlinienMalen(SchlZ_);
    SignaturMalen(vz);
}

void Notenzeile::SpaltenZiffern() {
    for (int i = 1; i <= 6; ++i)
        for (const int y : {0, halterHoehe - 14})
            PicBNot.text(lage_.ziffer(i), y, std::to_string(i), base::colours::black);
}

void Notenzeile::NotenlinienMalen(i16 s) {
    Blatt& blatt = PicB(s);
    blatt.leeren();
    LinienMalen(blatt, blatt.lage().breite, obersteLinie(s));
    if (s == schluessel::violin)
        ViolinschluesselMalen(blatt);
    else
        BassschluesselMalen(blatt);
}

void Notenzeile::SignaturMalen(i16 signatur) {
    const auto s = static_cast<std::size_t>(int(SchlZ_));
    for (int i = 0; i < std::abs(signatur); ++i) {
        const i16 x = signaturX + signaturSchritt * i;
        if (signatur > 0)
            KreuzMalen(PicB(SchlZ_), x, kreuzLinien.at(s).at(static_cast<std::size_t>(i)) - 12);
        else
            BeMalen(PicB(SchlZ_), x, beLinien.at(s).at(static_cast<std::size_t>(i)) - 17);
    }
}

void Notenzeile::GrenzLinienMalen() {
    for (const int s : {0, 1}) {
        const Grenze& g = grenzen_[s];
        const int ende = PicB(s).lage().breite - Spaltenlage::abstand;
        for (const int y : {g.oben, g.unten})
            PicB(s).linie(lage_.anfang(), y, ende, y, linienFarbe(farbe::gruen),
                          Linienart::Gepunktet);
    }
}

void Notenzeile::GrenzStueckMalen(i16 x, i16 farbe) {
    for (const int s : {0, 1}) {
        const Grenze& g = grenzen_[s];
        for (const int y : {g.oben, g.unten})
            PicB(s).linie(x - 20, y, x + 20, y, linienFarbe(farbe), Linienart::Gepunktet);
    }
}

void Notenzeile::NoteSetzen(i16 c, const Ton& ton, i16 farbe) {
    const Stelle stelle = YAusTon(ton, SchlZ_);
    NotSelb_[c].oktave = stelle.oktave;
    eintragen(c, SchlZ_, ton, stelle.y / 4, farbe);
    NoteMalen(c);
}

void Notenzeile::NoteAblegen(i16 c, i16 s, i16 y, i16 vz, i16 oktave) {
    NotSelb_[c].oktave = oktave;
    eintragen(c, s, TonAusY(y, s, vz, oktave), y / 4, farbe::schwarz);
    NotSelb_[c].abgelegt = 1;
}

void Notenzeile::eintragen(i16 c, i16 s, const Ton& ton, i16 SchrittY, i16 farbe) {
    Spalte& spalte = NotSelb_[c];
    spalte.midi = ton.midi;
    spalte.qz = ton.qz;
    spalte.vorzeichen = vorzeichen(ton.qz);
    spalte.schluessel = s;
    spalte.SchrittY = SchrittY;
    spalte.farbe = farbe;
    spalte.zeichen = NotenVergleich(c) == -1 ? zeichen::schonDa : zeichen::von(spalte.vorzeichen);
    if (mitSignatur_) spalte.zeichen = zeichen::ohne;
}

void Notenzeile::NoteMalen(i16 c) {
    const Spalte& spalte = NotSelb_[c];
    const i16 x = lage_.x(c), y = spalte.y(), s = spalte.schluessel;
    for (const int i : {0, 1}) SpalteLoeschen(PicB(i), obersteLinie(i), x);
    Blatt& blatt = PicB(s);
    NotenkopfMalen(blatt, x, y, spalte.farbe, s);
    i16 zaehler = 0;
    HilfslinienMalen(blatt, x, y, hilfslinieOben(s), hilfslinieUnten(s), zaehler);
    HalsMalen(blatt, x, y, zaehler, halsWende(s));
    VorzeichenMalen(blatt, x, y, zeichen::vorzeichen(spalte.zeichen));
    gemalt(c);
}

void Notenzeile::OktavMarke(i16 c) {
    OktavMarkeMalen(PicB(schluessel::violin), lage_.oktavMarke(c), 6,
                    NotSelb_[c].oktave == 1 ? farbe::schwarz : farbe::weiss);
}

void Notenzeile::SchritteMalen() {
    constexpr int schriftOben = 132;
    for (int c = 0; c + 1 < tonAnz_; ++c) {
        const int halbe = std::abs(int(NotSelb_[c + 1].midi - NotSelb_[c].midi));
        std::string text = halbe > 1 ? std::to_string(halbe / 2) : "";
        if (halbe % 2 == 1) text += "½";
        const int mitte = (lage_.x(c) + lage_.x(c + 1)) / 2;
        PicB(SchlZ_).text(mitte - 4, schriftOben, text, linienFarbe(farbe::gruen));
    }
}

i16 Notenzeile::NotenVergleich(i16 c) const {
    const Spalte& diese = NotSelb_[c];
    for (int j = c - 1; j >= 0; --j) {
        const Spalte& frueher = NotSelb_[j];
        if (!frueher.hatNote() || frueher.schluessel != diese.schluessel) continue;
        if (frueher.ton() == diese.ton()) return -1;
        if (frueher.qz != diese.qz && frueher.SchrittY == diese.SchrittY) return 1;
    }
    return 0;
}

}  // namespace staff
