#include "setup/tone_range.h"

#include "core/wort.h"

namespace setup {

namespace wort = core::wort;

namespace {

/// Lowest of all notes, MIDI.
constexpr int tiefste = 36;

/// Octaves of the smallest range.
constexpr int kleinste(Zweig zweig) { return klingt(zweig) ? 2 : 1; }
/// How many ranges a size offers.
constexpr int bereicheAnz(int oktAnz) { return 4 - oktAnz; }
/// The one that a size begins with.
constexpr int ersterBereich(Zweig zweig, int oktAnz) {
    if (klingt(zweig)) return oktAnz < 3 ? 1 : 0;
    return oktAnz < 2 ? 2 - oktAnz : 3 - oktAnz;
}

}  // namespace

ToneRange::ToneRange(core::Formular& form, core::Programm& programm, Zweig zweig,
                     form::Group& gruppe)
    : p(programm),
      z(programm.zustand),
      zweig_(zweig),
      lb0(form, {"lb0", &gruppe}),
      CmbOktAnz(form, {"CmbOktAnz", &gruppe}),
      CmbOktBer(form, {"CmbOktBer", &gruppe}) {
    form.beschriften({{lb0, wort::keyboardRegister}});
    form.benennen({{CmbOktAnz, wort::pitchRange}, {CmbOktBer, wort::keyboardRegister}});
    CmbOktAnz.onSelect = {"CmbOktAnz_click.", [this] { CmbOktAnz_click(); }};
    CmbOktBer.onSelect = {"CmbOktBer_click.", [this] { CmbOktBer_click(); }};
}

void ToneRange::fill() {
    for (int i = 0; i < 4; ++i) {
        const int n = kleinste(zweig_) + i;
        CmbOktAnz.add(" " + std::to_string(n) + " " + p.Wort(n == 1 ? wort::octave : wort::octaves),
                      i);
    }
    CmbOktAnz.setListIndex(0);
}

void ToneRange::CmbOktAnz_click() {
    z.oktAnz = CmbOktAnz.item(CmbOktAnz.listIndex()).data;
    const auto& unten = klingt(zweig_) ? wort::earRangeFrom : wort::theoryRangeFrom;
    const auto& oben = klingt(zweig_) ? wort::earRangeTo : wort::theoryRangeTo;
    CmbOktBer.clear();
    for (int i = 0; i < bereicheAnz(z.oktAnz); ++i)
        CmbOktBer.add(p.Wort(unten[i]) + " " + p.Wort(wort::dash) + " " +
                      p.Wort(oben[z.oktAnz + i]));
    CmbOktBer.setListIndex(ersterBereich(zweig_, z.oktAnz));
}

void ToneRange::CmbOktBer_click() {
    z.FrquMinAkt = tiefste + 12 * CmbOktBer.listIndex();
    z.FrquMaxAkt = z.FrquMinAkt + 12 * (z.oktAnz + kleinste(zweig_));
    if (onChosen) onChosen();
}

}  // namespace setup
