#include "setup/mode_choice.h"

#include "core/fortsetzung.h"
#include "core/wort.h"
#include "setup/choices.h"

#include <array>

namespace setup {

namespace wort = core::wort;

namespace {

namespace modus = core::modus;

/// What an exam fixes, by its number from 1. All scales occur, in changing keys.
struct Pruefungsvorgabe {
    int tempoIdx;
    int richtung;
};
constexpr std::array pruefungsvorgaben{
    Pruefungsvorgabe{3, 0}, Pruefungsvorgabe{3, 1}, Pruefungsvorgabe{3, 2},
    Pruefungsvorgabe{5, 2}, Pruefungsvorgabe{7, 2},
};

}  // namespace

ModeChoice::ModeChoice(core::Formular& form, core::Programm& programm, Zweig zweig,
                       const Groups& groups, SoundPanel& sound, const SavedChoice& saved)
    : form_(form),
      p(programm),
      z(programm.zustand),
      zweig_(zweig),
      groups_(groups),
      sound_(sound),
      saved_(saved),
      training_Combo(form, {"training_Combo", &groups(group::mode)}),
      prfnr_Comb(form, {"prfnr_Comb", &groups(group::mode)}) {
    prfnr_Comb.visible = false;
    form.benennen({{training_Combo, wort::exerciseMode}, {prfnr_Comb, wort::exam}});
    training_Combo.onSelect = {"training_Combo_click.", [this] { training_Combo_click(); }};
    prfnr_Comb.onSelect = {"prfnr_Comb_click.", [this] { prfnr_Comb_click(); }};
}

void ModeChoice::fill() {
    for (int m = modus::ausprobieren; m <= modus::pruefung; ++m)
        training_Combo.add(m == modus::fortsetzung && !saved_.FortsetzungVorhanden()
                               ? core::keineFortsetzung
                               : p.katalog.modus_name[m]);
    training_Combo.setListIndex(modus::ausprobieren);
    for (std::size_t n = 1; n <= pruefungsvorgaben.size(); ++n)
        prfnr_Comb.add(p.Wort(wort::number) + " " + std::to_string(n));
    prfnr_Comb.setListIndex(0);
    bereit_ = true;
}

void ModeChoice::training_Combo_click() {
    z.uebungsmodus = training_Combo.listIndex();
    prfnr_Comb.visible = false;
    if (z.uebungsmodus == modus::fortsetzung) return TrainingFortsetzen();
    groups_.GruppenOeffnen(z.ska_ausw != 0);
    sound_.openTempo();
    if (z.uebungsmodus == modus::pruefung) {
        prfnr_Comb.visible = true;
        prfnr_Comb_click();
    }
}

void ModeChoice::prfnr_Comb_click() {
    z.prfNr = prfnr_Comb.listIndex() + 1;
    if (bereit_) PruefungVorgeben();
}

void ModeChoice::PruefungVorgeben() {
    const auto& vorgabe = pruefungsvorgaben.at(static_cast<std::size_t>(z.prfNr - 1));
    z.abfrage = 1;
    z.tempoIdx = vorgabe.tempoIdx;
    z.richtung = vorgabe.richtung;
    z.final = 2;
    z.ska_ausw = 0;
    choose(form_, "abfrage", 1);
    sound_.chooseTempo(vorgabe.tempoIdx);
    choose(form_, "Combo_richtung", vorgabe.richtung);
    choose(form_, "final", 2);
    groups_.lockForExam();
    sound_.lockTempo();
}

/// What cannot be continued becomes a new training.
void ModeChoice::TrainingFortsetzen() {
    if (training_Combo.text() == core::keineFortsetzung)
        return training_Combo.setListIndex(modus::training);
    p.host.LeseEinstellung("E" + core::satz(z));
    try {
        saved_.WahlWiederherstellen(z.gelesen_e);
    } catch (const base::RuntimeError&) {
        return training_Combo.setListIndex(modus::training);
    }
    groups_.lockForTraining();
    sound_.lockTempo();
}

void ModeChoice::ModusSchritt() {
    if (z.uebungsmodus == modus::training) z.gelesen_e = saved_.WahlMerken();
    if (z.uebungsmodus == modus::test) {
        z.abfrage = 1;
        choose(form_, "abfrage", 1);
    }
    if (z.uebungsmodus == modus::pruefung) {
        if (klingt(zweig_) || z.ueb_typ == core::uebung::bestimmen) PruefungVorgeben();
        p.host.HostMeldung(std::string(core::Host::programm) +
                           "; prfNr=" + std::to_string(z.prfNr));
    }
}

}  // namespace setup
