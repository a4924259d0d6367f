#include "engine/tonality.h"

namespace engine {

namespace katalog = core::katalog;

namespace {

constexpr std::array major{0, 2, 4, -1, 1, 3, 5};
constexpr std::array melodicMinor{0, 2, -3, -1, 1, 3, 5};
constexpr std::array pentatonic{0, 2, 4, 1, 3};

/// Octaves of a range by its index.
constexpr std::array oktTab{2, 3, 4, 5};
constexpr int degrees = 7;

template <std::size_t n>
constexpr int fifthsAt(const std::array<int, n>& tabelle, int stufe) {
    return stufe < static_cast<int>(n) ? base::at(tabelle, stufe) : 0;
}

}  // namespace

i16 TonalityChoice::stufenQz(int skal_typ, int stufe) {
    switch (skal_typ) {
        case 0:
            return fifthsAt(major, stufe);
        case 1:
            return fifthsAt(melodicMinor, stufe);
        case 4:
            return fifthsAt(pentatonic, stufe);
        default:
            return 0;
    }
}

bool TonalityChoice::settled() const {
    if (tonality_ == Tonality::Sounding) return z.final != 2;
    return tonality_ == Tonality::Written && core::isTest(z);
}

void TonalityChoice::beginRun(Task& a) {
    const auto& kategorie = katalog::kategorie(z.skal_typ);
    a.tonAnz = kategorie.tonAnz;
    oktSpanne_ = base::at(oktTab, z.oktAnz) - 2;
    for (int nr = 0; nr <= kategorie.skal_max; ++nr) {
        base::at(patterns_, nr) = katalog::pattern(z.skal_typ, nr);
        base::at(scaleTones_, nr) = katalog::scaleTones(z.skal_typ, nr);
    }
    a.transp = a.transpLage = a.quintLage = 0;
    if (tonality_ != Tonality::Sounding) return;
    if (kategorie.rotiert && z.final == 0) a.transp = rnd_.upTo(11);
    if (kategorie.rotiert && z.final == 1) finalis_ = rnd_.upTo(11);
    if (!kategorie.rotiert && z.final == 1) a.transp = rnd_.upTo(11);
}

void TonalityChoice::draw(Task& a) {
    switch (tonality_) {
        case Tonality::Sounding:
            if (z.final == 2) a.transp = rnd_.upTo(11);
            return;
        case Tonality::Read: {
            const int richtung = rnd_.sign();
            a.quintLage = rnd_.below(8) * richtung;
            return;
        }
        case Tonality::Written: {
            if (z.uebungsmodus == core::modus::test) return;
            const int zeichen = rnd_.upTo(6);
            a.quintLage = zeichen * rnd_.sign();
            return;
        }
    }
}

void TonalityChoice::makeTones(Task& a) {
    if (tonality_ == Tonality::Sounding)
        soundingTones(a);
    else
        spelledTones(a);
}

void TonalityChoice::fillNotes(Task& a, i16 firstNote) const {
    const katalog::Leiter& scaleTones = base::at(scaleTones_, a.skala_nr);
    // A melody takes eight tones, also of a shorter rotating scale.
    const int count = katalog::rotiert(z.skal_typ) ? 8 : int(a.tonAnz);
    for (int k = 0; k < count; ++k) a.noten[k] = firstNote + base::at(scaleTones, k);
}

void TonalityChoice::soundingTones(Task& a) {
    const katalog::Leiter& pattern = base::at(patterns_, a.skala_nr);
    const bool rotiert = katalog::rotiert(z.skal_typ);
    const int degree = rotiert ? base::at(pattern, a.skala_nr) : 0;
    if (rotiert && z.final == 1) a.transp = (finalis_ + 12 - degree) % 12;
    const int versatz = rotiert ? int(degree + a.transp) / 12 * 12 : 0;
    a.oktLage = z.FrquMinAkt + drawOctave() - versatz;
    fillNotes(a, degree + a.transp + a.oktLage);
    if (z.stimmung == katalog::stimmung::gleich) return;
    for (int k = 0; k < a.tonAnz; ++k) {
        const int stufe = (a.skala_nr + k) % degrees;
        a.stimmWert[k] = katalog::tuningCorrection(z.stimmung, z.skal_typ, stufe,
                                                   (base::at(pattern, stufe) + a.transp) % 12);
    }
}

void TonalityChoice::spelledTones(Task& a) {
    const i16 first = a.quintLage + core::QzMitte + stufenQz(z.skal_typ, a.skala_nr);
    a.transp = core::pitchClass(first);
    // A first note high in its octave would lead beyond the staff.
    const bool high =
        tonality_ == Tonality::Written ? core::letter(first) == 6 : core::lettersAboveC(first) > 3;
    const int versatz = high ? 12 : 0;
    a.transpLage = a.transp - versatz;
    a.oktLage = z.FrquMinAkt + drawOctave() - versatz;
    fillNotes(a, a.transp + a.oktLage);
    if (!katalog::rotiert(z.skal_typ)) return;
    for (int k = 0; k < a.tonAnz; ++k) {
        const int stufe = (a.skala_nr + k) % degrees;
        a.notenQz[k] = a.quintLage + stufenQz(z.skal_typ, stufe) + core::QzMitte;
        a.stimmWert[k] = katalog::tuningCorrection(z.stimmung, z.skal_typ, stufe, a.noten[k] % 12);
    }
}

}  // namespace engine
