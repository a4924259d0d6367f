#include "engine/tonart.h"

namespace engine {

namespace katalog = core::katalog;

namespace {

constexpr std::array dur{0, 2, 4, -1, 1, 3, 5};
constexpr std::array melodischMoll{0, 2, -3, -1, 1, 3, 5};
constexpr std::array pentatonisch{0, 2, 4, 1, 3};

/// Octaves of a range by its index.
constexpr std::array oktTab{2, 3, 4, 5};
constexpr int grade = 7;

template <std::size_t n>
constexpr int an(const std::array<int, n>& tabelle, int stufe) {
    return stufe < static_cast<int>(n) ? base::at(tabelle, stufe) : 0;
}

}  // namespace

i16 Tonartwahl::stufenQz(int skal_typ, int stufe) {
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

bool Tonartwahl::fest() const {
    if (art_ == Tonart::Klingend) return z.final != 2;
    return art_ == Tonart::Geschrieben && core::imTest(z);
}

void Tonartwahl::LaufBeginn(Aufgabe& a) {
    const auto& kategorie = katalog::kategorie(z.skal_typ);
    a.tonAnz = kategorie.tonAnz;
    oktSpanne_ = base::at(oktTab, z.oktAnz) - 2;
    for (int nr = 0; nr <= kategorie.skal_max; ++nr) {
        base::at(muster_, nr) = katalog::muster(z.skal_typ, nr);
        base::at(leitern_, nr) = katalog::leiter(z.skal_typ, nr);
    }
    a.transp = a.transpLage = a.quintLage = 0;
    if (art_ != Tonart::Klingend) return;
    if (kategorie.rotiert && z.final == 0) a.transp = rnd_.upTo(11);
    if (kategorie.rotiert && z.final == 1) finalis_ = rnd_.upTo(11);
    if (!kategorie.rotiert && z.final == 1) a.transp = rnd_.upTo(11);
}

void Tonartwahl::Ziehen(Aufgabe& a) {
    switch (art_) {
        case Tonart::Klingend:
            if (z.final == 2) a.transp = rnd_.upTo(11);
            return;
        case Tonart::Gelesen: {
            const int richtung = rnd_.sign();
            a.quintLage = rnd_.below(8) * richtung;
            return;
        }
        case Tonart::Geschrieben: {
            if (z.uebungsmodus == core::modus::test) return;
            const int zeichen = rnd_.upTo(6);
            a.quintLage = zeichen * rnd_.sign();
            return;
        }
    }
}

void Tonartwahl::Toene(Aufgabe& a) {
    if (art_ == Tonart::Klingend)
        KlingendeToene(a);
    else
        KreisToene(a);
}

void Tonartwahl::leiterAb(Aufgabe& a, i16 ersteNote) const {
    const katalog::Leiter& leiter = base::at(leitern_, a.skala_nr);
    // A melody takes eight tones, also of a shorter rotating scale.
    const int anzahl = katalog::rotiert(z.skal_typ) ? 8 : int(a.tonAnz);
    for (int k = 0; k < anzahl; ++k) a.noten[k] = ersteNote + base::at(leiter, k);
}

void Tonartwahl::KlingendeToene(Aufgabe& a) {
    const katalog::Leiter& muster = base::at(muster_, a.skala_nr);
    const bool rotiert = katalog::rotiert(z.skal_typ);
    const int grad = rotiert ? base::at(muster, a.skala_nr) : 0;
    if (rotiert && z.final == 1) a.transp = (finalis_ + 12 - grad) % 12;
    const int versatz = rotiert ? int(grad + a.transp) / 12 * 12 : 0;
    a.oktLage = z.FrquMinAkt + oktaveZiehen() - versatz;
    leiterAb(a, grad + a.transp + a.oktLage);
    if (z.stimmung == katalog::stimmung::gleich) return;
    for (int k = 0; k < a.tonAnz; ++k) {
        const int stufe = (a.skala_nr + k) % grade;
        a.stimmWert[k] = katalog::stimmKorrektur(z.stimmung, z.skal_typ, stufe,
                                                 (base::at(muster, stufe) + a.transp) % 12);
    }
}

void Tonartwahl::KreisToene(Aufgabe& a) {
    const i16 erster = a.quintLage + core::QzMitte + stufenQz(z.skal_typ, a.skala_nr);
    a.transp = core::tonklasse(erster);
    // A first note high in its octave would lead beyond the staff.
    const bool hoch = art_ == Tonart::Geschrieben ? core::stammton(erster) == 6
                                                  : core::buchstabenUeberC(erster) > 3;
    const int versatz = hoch ? 12 : 0;
    a.transpLage = a.transp - versatz;
    a.oktLage = z.FrquMinAkt + oktaveZiehen() - versatz;
    leiterAb(a, a.transp + a.oktLage);
    if (!katalog::rotiert(z.skal_typ)) return;
    for (int k = 0; k < a.tonAnz; ++k) {
        const int stufe = (a.skala_nr + k) % grade;
        a.notenQz[k] = a.quintLage + stufenQz(z.skal_typ, stufe) + core::QzMitte;
        a.stimmWert[k] = katalog::stimmKorrektur(z.stimmung, z.skal_typ, stufe, a.noten[k] % 12);
    }
}

}  // namespace engine
