// The sound check: six notes through the very path that the tasks use.
#include "base/rounding.h"
#include "core/katalog.h"
#include "setup/einstellung.h"
#include "sound/tonlinie.h"

#include <algorithm>
#include <vector>

namespace setup {

namespace {

namespace katalog = core::katalog;

/// Tuning correction of a note in bend steps. In Pythagorean tuning only white keys have a degree.
i16 korrektur(int stimmung, int note) {
    const int klasse = note % 12;
    const auto grad = std::ranges::find(katalog::diatonisch, klasse) - katalog::diatonisch.begin();
    const bool weiss = grad < std::ssize(katalog::diatonisch);
    if (stimmung == katalog::stimmung::pythagoreisch && !weiss) return 0;
    return katalog::stimmKorrektur(stimmung, 0, weiss ? static_cast<int>(grad) : 0, klasse);
}

}  // namespace

void Einstellung::klang_contr_click() {
    constexpr int noten = 6;
    const int d = base::rounded((z.FrquMaxAkt - z.FrquMinAkt) / 5.0);
    verklungen_ = false;
    klang_contr.enabled = false;
    cmdOK.enabled = false;
    midi_.MidiReset();
    TonHinweisZeigen();
    midi_.SetzeKlangfarben(z.patch);
    std::vector<sound::Linienton> linie;
    for (int i = 0; i < noten; ++i) {
        const i16 note = z.FrquMinAkt + i * (d - 1);
        linie.push_back({note, i, korrektur(z.stimmung, note)});
    }
    sound::TonlinieLegen(midi_, linie,
                         {.tondauer = z.tempo_dauer[z.tempoIdx], .stimmung = z.stimmung});
    midi_.Delay(100, abbruch_);
    if (!abbruch_) midi_.ausgabe().start();
}

void Einstellung::QueueEmpty() {
    verklungen_ = !klang_contr.enabled();
    KlangKontrolleAbschliessen();
}

/// While another form is on top it waits: what is enabled behind that form's back could be pressed.
void Einstellung::KlangKontrolleAbschliessen() {
    if (!verklungen_ || abbruch_) return;
    if (!forms().last() || forms().last()->caption() != caption()) return;
    verklungen_ = false;
    klang_contr.enabled = true;
    if (z.ska_ausw == 1)
        selectionCheck();
    else
        cmdOK.enabled = true;
}

}  // namespace setup
