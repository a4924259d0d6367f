#include "engine/toene.h"

#include "core/katalog.h"

namespace engine {

namespace katalog = core::katalog;

void SkalaTabellen(Aufgabe& a, int skal_typ) {
    a.tonAnz = katalog::kategorien.at(static_cast<std::size_t>(skal_typ)).tonAnz;
    const auto muster = katalog::grundmuster(skal_typ);
    for (int i = 0; i < static_cast<int>(muster.size()); ++i)
        a.stufe[i] = muster[static_cast<std::size_t>(i)];
    const auto stimm = katalog::stufenStimm(skal_typ);
    for (int i = 0; i < 7; ++i) a.stufenStimm[i] = stimm[static_cast<std::size_t>(i)];
}

void SkalaStufen(Aufgabe& a, int skal_typ, int skala_nr) {
    const katalog::Skala* skala = katalog::eigenesMuster(skal_typ, skala_nr);
    if (!skala) return;
    for (int i = 0; i < a.tonAnz; ++i) a.stufe[i] = skala->stufe[static_cast<std::size_t>(i)];
}

i16 stimmWert(const Aufgabe& a, int stimmung, int skala_nr, int position) {
    const int stufe = (skala_nr + position) % 7;
    if (stimmung == 1) return a.stufenStimm[stufe];
    const int klasse = (a.stufe[stufe] + a.transp) % 12;
    return katalog::mittelTab[static_cast<std::size_t>(klasse)];
}

void KlingendeTonart::LaufBeginn() {
    a.transp = 0;
    const bool rotiert = katalog::rotiert(z.skal_typ);
    if (rotiert && z.final == 0) a.transp = rnd_.upTo(11);
    if (rotiert && z.final == 1) a.finalis = rnd_.upTo(11);
    if (!rotiert && z.final == 1) a.transp = rnd_.upTo(11);
}

void KlingendeTonart::Ziehen() {
    if (z.final == 2) a.transp = rnd_.upTo(11);
}

void KlingendeTonart::Toene() {
    const int nr = z.skala_nr;
    const bool rotiert = katalog::rotiert(z.skal_typ);
    int versatz = 0;
    if (rotiert) {
        if (z.final == 1) a.transp = (a.finalis + 12 - a.stufe[nr]) % 12;
        versatz = (a.stufe[nr] + a.transp) / 12;
    } else {
        SkalaStufen(a, z.skal_typ, nr);
    }
    a.oktLage = z.FrquMinAkt + rnd_.below(a.oktSpanne + 1) * 12 - versatz * 12;

    // A rotating scale is read from its degree on, and once more around: its line always rises.
    const int anzahl = rotiert ? 8 : int(a.tonAnz);
    for (int j = 0; j < anzahl; ++j) {
        const int stufe = rotiert ? (nr + j) % (int(a.tonAnz) - 1) : j;
        a.noten[j] = a.stufe[stufe] + a.transp + a.oktLage;
        if (z.stimmung != 0) a.stimmWert[j] = stimmWert(a, z.stimmung, nr, j);
        if (rotiert && j > 0 && a.noten[j] < a.noten[j - 1]) a.noten[j] += 12;
    }
}

}  // namespace engine
