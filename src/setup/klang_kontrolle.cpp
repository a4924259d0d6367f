// The sound check: six notes through the very path that the tasks use.
#include "base/rounding.h"
#include "core/katalog.h"
#include "setup/einstellung.h"
#include "sound/klang.h"

#include <array>

namespace setup {

namespace {

namespace katalog = core::katalog;

/// Tuning correction of a note in bend steps: of the white key's degree in Pythagorean tuning, of
/// the pitch class in meantone.
int verstimmung(int stimmung, int note) {
    const int klasse = note % 12;
    if (stimmung == 2) return katalog::mittelTab[static_cast<std::size_t>(klasse)];
    for (std::size_t grad = 0; grad < katalog::diatonisch.size(); ++grad)
        if (katalog::diatonisch[grad] == klasse) return katalog::stufenStimm(0)[grad];
    return 0;
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
    for (int kanal = 0; kanal < sound::kanaele; ++kanal)
        midi_.SetzeKlangfarbe(z.patch[kanal], kanal);
    const int dauer = z.tempo_dauer[z.tempoIdx];
    for (int i = 0; i < noten; ++i) {
        const i16 note = z.FrquMinAkt + i * (d - 1);
        const int kanal = z.stimmung == 0 ? 0 : i + 1;
        if (z.stimmung != 0)
            midi_.MidiPitchBend(kanal, sound::Midi::bendMitte + verstimmung(z.stimmung, note));
        midi_.MidiNote(note, i * dauer, base::rounded(dauer * 0.9), kanal, i);
    }
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
