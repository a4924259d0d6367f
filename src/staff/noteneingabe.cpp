#include "staff/noteneingabe.h"

#include "base/rounding.h"
#include "staff/farbe.h"
#include "staff/noten.h"

namespace staff {

Noteneingabe::Noteneingabe(Notenzeile& zeile) : zeile_(zeile) {
    for (const int s : {0, 1}) {
        Blatt& blatt = zeile_.PicB(s);
        const auto vonPalette = [](const Zug& zug) { return zug.quelle.name() == quelle::feld; };
        blatt.onAblegen = [this, s, vonPalette](const Zug& zug) {
            if (vonPalette(zug)) DragDrop(s, zug.quelle.index(), zug.x, zug.y);
        };
        blatt.onUeber = [this, s, vonPalette](const Zug& zug, ZugZustand zustand) {
            if (vonPalette(zug)) DragOver(s, zug.quelle.index(), zug.x, zug.y, zustand);
        };
        blatt.lehntAb = [this, s, vonPalette](const Zug& zug) {
            return !vonPalette(zug) || wuerdeAblehnen(s, zug.quelle.index(), zug.x, zug.y);
        };
    }
    AufgabeBeginnt();
}

void Noteneingabe::AufgabeBeginnt() {
    for (int c = 0; c < Spaltenlage::spalten; ++c) spalteFrei_[c] = c >= 1 && c <= 6;
}

bool Noteneingabe::DragDrop(i16 s, i16 index, float X, float Y) {
    if (X < static_cast<float>(zeile_.lage().anfang())) return false;
    const i16 c = zeile_.lage().spalteBei(X);
    const auto y = ziel(s, index, c, Y);
    Vorschau(s, c, farbe::weiss);
    if (!y) return false;
    zeile_.NoteAblegen(c, s, *y, vorzeichenDer(index, c, s), oktaveDer(index, c));
    letzteSpalte_ = 0;
    zeile_.NoteMalen(c);
    zeile_.OktavMarke(c);
    zeile_.GrenzStueckMalen(zeile_.lage().x(c), farbe::gruen);
    if (abgelegt) abgelegt();
    return true;
}

bool Noteneingabe::wuerdeAblehnen(i16 s, i16 index, float X, float Y) const {
    return X < static_cast<float>(zeile_.lage().anfang()) ||
           !ziel(s, index, zeile_.lage().spalteBei(X), Y);
}

std::optional<i16> Noteneingabe::ziel(i16 s, i16 index, i16 c, float Y) const {
    if (!spalteFrei_[c]) return {};
    const i16 y = (base::roundedI16(static_cast<double>(Y)) + 2) / 4 * 4;
    const i16 oben = zeile_.grenze(s).hoechste(), unten = zeile_.grenze(s).tiefste();
    const bool amRand = y == oben || y == unten;
    if (amRand ? !RandErlaubt(index, c, s, y) : y < oben || y > unten) return {};
    return AblageErlaubt(index, s, c);
}

std::optional<i16> Noteneingabe::AblageErlaubt(i16 index, i16 s, i16 c) const {
    const Spalte& spalte = zeile_.NotSelb(c);
    if (!spalte.hatNote() || spalte.schluessel != s) return {};
    if (index != quelle::oktave && spalte.vorzeichen == vorzeichenDer(index, c, s)) return {};
    return spalte.y();
}

/// On a limit a note may not leave the range: not above the tonic at the top, not below it at the
/// bottom, counted in fifths.
bool Noteneingabe::RandErlaubt(i16 index, i16 c, i16 s, i16 y) const {
    const i16 qz = qzVon(stammtonBei(y, s), vorzeichenDer(index, c, s));
    const i16 z = zeile_.umfang().quintLage + QzMitte;
    return y == zeile_.grenze(s).hoechste() ? qz <= z : qz >= z;
}

i16 Noteneingabe::vorzeichenDer(i16 index, i16 c, i16 s) const {
    if (index == quelle::wieVorher) return VorzeichenDavor(c, s, zeile_.NotSelb(c).y());
    if (index == quelle::oktave) return zeile_.NotSelb(c).vorzeichen;
    return quelle::vorzeichen(index);
}

i16 Noteneingabe::oktaveDer(i16 index, i16 c) const {
    const i16 oktave = zeile_.NotSelb(c).oktave;
    if (index == quelle::oktave) return 1 - oktave;
    return index < quelle::anzahl ? int(oktave) : 0;
}

i16 Noteneingabe::VorzeichenDavor(i16 c, i16 s, i16 y) const {
    for (int j = c - 1; j >= 0; --j) {
        const Spalte& frueher = zeile_.NotSelb(j);
        if (frueher.hatNote() && frueher.y() == y && frueher.schluessel == s)
            return frueher.vorzeichen;
    }
    return 0;
}

bool Noteneingabe::vorschauMoeglich(i16 index, i16 s, i16 c) const {
    return c >= 1 && spalteFrei_[c] && AblageErlaubt(index, s, c).has_value();
}

void Noteneingabe::DragOver(i16 s, i16 index, float X, float, ZugZustand zustand) {
    if (index >= quelle::oktave) return;
    const i16 c = zeile_.lage().spalteBei(X);
    switch (zustand) {
        case ZugZustand::Betreten:
            if (vorschauMoeglich(index, s, c)) Vorschau(s, c, farbe::grau);
            return;
        case ZugZustand::Verlassen:
            if (letzteSpalte_ > 0) Vorschau(s, letzteSpalte_, farbe::weiss);
            return;
        case ZugZustand::Ueber:
            if (c == letzteSpalte_) return;
            if (vorschauMoeglich(index, s, letzteSpalte_)) Vorschau(s, letzteSpalte_, farbe::weiss);
            letzteSpalte_ = c;
            if (vorschauMoeglich(index, s, c)) Vorschau(s, c, farbe::grau);
            return;
    }
}

void Noteneingabe::Vorschau(i16 s, i16 c, i16 farbe) {
    VorschauMalen(s, zeile_.lage().x(c), VorschauArt(s, c), farbe);
}

i16 Noteneingabe::VorschauArt(i16 s, i16 c) const {
    const Spalte& spalte = zeile_.NotSelb(c);
    if (spalte.schluessel != s || !spalte.hatNote()) return 0;
    if (spalte.SchrittY <= hilfslinieOben(s)) return 1;
    return spalte.SchrittY >= hilfslinieUnten(s) ? 2 : 0;
}

void Noteneingabe::VorschauMalen(i16 s, i16 x, i16 art, i16 farbe) {
    constexpr int hoechste = 6, tiefste = 30;
    const Spalte& spalte = zeile_.NotSelb(zeile_.lage().spalteBei(static_cast<float>(x)));
    Blatt& blatt = zeile_.PicB(s);
    const auto hilfslinie = [&](int k) {
        blatt.linie(x - 6, 4 * k, x + 7, 4 * k, linienFarbe(farbe));
    };
    for (int k = hilfslinieOben(s); k >= hoechste; k -= 2)
        if (art != 1 || k < spalte.SchrittY) hilfslinie(k);
    // A wiped line may have cut the head.
    if (spalte.hatNote() && farbe == farbe::weiss && spalte.SchrittY <= 15 - 4 * s &&
        spalte.schluessel == s)
        NotenkopfMalen(blatt, x, spalte.y(), spalte.farbe, s);
    for (int k = hilfslinieUnten(s); k <= tiefste; k += 2)
        if (art != 2 || k > spalte.SchrittY) hilfslinie(k);
}

}  // namespace staff
