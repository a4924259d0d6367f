#include "staff/kreistonart.h"

#include "core/katalog.h"

#include <array>

namespace staff {

namespace {

constexpr std::array dur{0, 2, 4, -1, 1, 3, 5};
constexpr std::array melodischMoll{0, 2, -3, -1, 1, 3, 5};
constexpr std::array pentatonisch{0, 2, 4, 1, 3};

template <std::size_t n>
constexpr int an(const std::array<int, n>& tabelle, int stufe) {
    return static_cast<std::size_t>(stufe) < n ? tabelle[static_cast<std::size_t>(stufe)] : 0;
}

}  // namespace

i16 KreisTonart::stufenQz(int skal_typ, int stufe) {
    switch (skal_typ) {
        case 0:
            return an(dur, stufe);
        case 1:
            return an(melodischMoll, stufe);
        case 4:
            return an(pentatonisch, stufe);
        default:
            return 0;
    }
}

void KreisTonart::LaufBeginn() { a.transp = a.transpLage = a.quintLage = 0; }

void KreisTonart::Ziehen() {
    if (art_ == Art::Bestimmen) {
        const int richtung = rnd_.sign();
        a.quintLage = rnd_.below(8) * richtung;
    } else if (z.uebungsmodus != core::modus::test) {
        const int zeichen = rnd_.upTo(6);
        a.quintLage = zeichen * rnd_.sign();
    }
}

void KreisTonart::Toene() {
    if (art_ == Art::Schreiben && z.uebungsmodus > core::modus::fortsetzung)
        a.quintLage = z.matbox(a.matIndex, 1);
    const i16 erster = a.quintLage + QzMitte + stufenQz(z.skal_typ, z.skala_nr);
    a.transp = tonklasse(erster);
    // A first note high in its octave would lead beyond the staff.
    const bool hoch =
        art_ == Art::Schreiben ? stammton(erster) == 6 : core::buchstabenUeberC(erster) > 3;
    a.transpLage = a.transp - (hoch ? 12 : 0);
    a.oktLage = z.FrquMinAkt + rnd_.below(a.oktSpanne + 1) * 12 - (hoch ? 12 : 0);
    if (core::katalog::rotiert(z.skal_typ))
        rotierteToene();
    else
        eigeneToene();
}

void KreisTonart::rotierteToene() {
    const int grade = int(a.tonAnz) - 1;
    const int grundKlasse = tonklasse(a.quintLage + QzMitte);
    for (int k = 0; k < 8; ++k) {
        const int nr = z.skala_nr + k;
        a.notenQz[k] = a.quintLage + stufenQz(z.skal_typ, nr % 7) + QzMitte;
        a.noten[k] = (a.stufe[nr % grade] + grundKlasse) % 12 + a.oktLage;
        if (k > 0 && a.noten[k] < a.noten[k - 1]) a.noten[k] += 12;
        if (z.stimmung == 1) a.stimmWert[k] = a.stufenStimm[nr % 7];
        if (z.stimmung == 2)
            a.stimmWert[k] = core::katalog::mittelTab[static_cast<std::size_t>(a.noten[k] % 12)];
    }
}

void KreisTonart::eigeneToene() {
    engine::SkalaStufen(a, z.skal_typ, z.skala_nr);
    for (int k = 0; k < a.tonAnz; ++k) a.noten[k] = a.stufe[k] + a.transp + a.oktLage;
}

}  // namespace staff
