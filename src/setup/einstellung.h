#pragma once
#include "core/formular.h"
#include "results/skalaxml.h"
#include "results/wertung.h"
#include "setup/auswahl.h"
#include "setup/regeln.h"
#include "sound/midi.h"

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace setup {

using base::i16;

/// The set-up form: every choice of an exercise, in coloured groups, and a sound check. It writes
/// the choices into the shared state as they are made, and opens the worksheet.
class Einstellung final : public core::Formular {
  public:
    /// @param ausgabe the form's MIDI control.
    Einstellung(core::Programm& programm, results::Wertung& wertung, results::Skalaxml& xml,
                sound::Midi& midi, sound::MidiOutput& ausgabe, Zweig zweig);

    void load() override { start.start(); }
    void closeBox() override { cmdZurueck_click(); }
    void unloading() override;
    bool key(form::Key key) override;

    /// Rebuilds the recap of the settings: labels in German in every language, and values.
    void EinstDatSave();

  protected:
    void nachFehler(const std::string& prozedur) override;

  private:
    void start_timer();
    void Verbinden();
    void LadewerteSetzen();
    void KlangEinrichten();
    void CombosFuellen();
    void OhneKlang();
    void Beschriften();
    void KlangBeschriften();

    void skal_typ_cmb_click();
    void RegelnAnwenden();
    void final_click();
    void abfolge_click();
    void CmbOktAnz_click();
    void CmbOktBer_click();
    void ComboPatch_click();
    void HSliderVolume_change();
    Richtungen richtungen() const { return {z.abfolge, z.richtung}; }
    void ska_ausw_click();
    void AuswahlOeffnen();
    void AuswahlWiederaufnehmen();
    void AuswahlZeigen();
    /// Which scales are to be had: category, note order, direction.
    using Skalen = std::array<int, 3>;
    Skalen ZurWahl() const { return {z.skal_typ, z.abfolge, z.richtung}; }
    void lst_ska_click(form::ListBox& quelle, form::ListBox& ziel);
    void selectionCheck();
    void writeHint(int flag);
    void AuswahlStandZeigen();

    void training_Combo_click();
    void prfnr_Comb_click();
    void PruefungVorgeben();
    void GruppenOeffnen();

    /// A choice that a saved training keeps.
    struct Gemerkt {
        std::array<int, 2> stelle;  ///< its element in the saved settings of each branch, or keine
        std::function<int()> lesen;
        /// @throws run-time error 9 for a value that the form has not.
        std::function<void(int)> waehlen;
    };
    std::size_t stelle(const Gemerkt& wahl) const;
    std::vector<Gemerkt> gemerkteWahl();
    void SkalenWiederherstellen(const core::Value& satz);
    bool FortsetzungVorhanden();
    core::Value::Array WahlMerken();
    void WahlWiederherstellen(const core::Value& satz);
    void TrainingFortsetzen();

    void PruefungMarkieren(form::Group& gruppe);
    void popExamToggle_click();
    void cmdOptionSave_click();
    void DateiSchreiben(const std::string& pfad, const std::string& beschreibung);
    void cmdOptionRead_click();
    void StartdateiAnwenden();
    void klang_contr_click();
    void QueueEmpty();
    void KlangKontrolleAbschliessen();
    void TonHinweisZeigen();
    void cmdOK_click();
    void ModusSchritt();
    void AuswahlUebernehmen();
    void cmdZurueck_click();

    /// The sound of a task can be set up.
    bool klingt() const { return zweig_ == Zweig::Gehoerbildung; }
    /// Indices of controls that only a branch with sound has.
    std::vector<int> wennKlang(std::vector<int> indices) const {
        return klingt() ? std::move(indices) : std::vector<int>{};
    }
    form::Group* klangGruppe(int index) const { return klingt() ? &grdeinst(index) : nullptr; }
    static std::vector<int> gruppenIndices(Zweig zweig, bool ueberschrift);

    static constexpr int ohne = form::Place::noIndex;
    static std::string zahl(int n) { return " " + std::to_string(n); }
    static std::string captionVon(const form::ControlArray<form::Option>& optionen, int wert);

    results::Wertung& wertung_;
    results::Skalaxml& xml_;
    sound::Midi& midi_;
    sound::MidiOutput& MIDI;
    Zweig zweig_;
    bool bereit_ = false;
    bool abbruch_ = false;
    Skalen zurWahl_{};                  ///< those that the lists were filled with
    bool verklungen_ = false;           ///< a sound check has ended and was not closed yet
    form::Group* popGruppe_ = nullptr;  ///< of the last right-click
    form::Connection listeGeaendert_, formularFort_;

    // The order of the controls is also their order in a settings file.
    form::ControlArray<form::Group> grdeinst{*this, "grdeinst", gruppenIndices(zweig_, false)};
    form::ControlArray<form::Label> geinst_lb{*this, "geinst_lb", gruppenIndices(zweig_, true)};
    form::ControlArray<form::Group> kl_rahmen{*this, "kl_rahmen", 2, &grdeinst(10)};
    form::ListBox lst_ska1{*this, {"lst_ska", 1, &kl_rahmen(1)}};
    form::ListBox lst_ska0{*this, {"lst_ska", 0, &kl_rahmen(0)}};
    form::ControlArray<form::Label> lb10{*this, "lb10", 3, &grdeinst(10)};
    /// How many of the places are taken.
    form::Label wahlStand{*this, {"wahlStand", ohne, &grdeinst(10)}};
    std::unique_ptr<form::Combo> Combo_mt =
        klingt() ? std::make_unique<form::Combo>(*this, form::Place{"Combo_mt", ohne, &grdeinst(3)})
                 : nullptr;
    form::ControlArray<form::Option> stimm_g{*this, "stimm_g", wennKlang({2, 0, 1}),
                                             klangGruppe(3)};
    form::Combo skal_typ_cmb{*this, {"skal_typ_cmb", ohne, &grdeinst(1)}};
    form::Combo temp_Combo{*this, {"temp_Combo", ohne, &grdeinst(15)}};
    form::ControlArray<form::Option> an_zeig{*this, "an_zeig", 2, &grdeinst(11)};
    form::ControlArray<form::Option> ska_ausw{*this, "ska_ausw", std::vector<int>{1, 0},
                                              &grdeinst(9)};
    form::ControlArray<form::Option> final{*this, "final", std::vector<int>{2, 1, 0}, &grdeinst(7)};
    form::ControlArray<form::Option> abfrage{*this, "abfrage", 2, &grdeinst(5)};
    form::Combo Combo_richtung{*this, {"Combo_richtung", ohne, &grdeinst(4)}};
    form::Label lb4{*this, {"lb4", ohne, &grdeinst(4)}};
    form::ControlArray<form::Option> abfolge{*this, "abfolge", 2, &grdeinst(4)};
    form::ControlArray<form::Option> frequenz{*this, "frequenz", wennKlang({1, 0}), klangGruppe(2)};
    form::Label lb0{*this, {"lb0", ohne, &grdeinst(0)}};
    form::Combo CmbOktAnz{*this, {"CmbOktAnz", ohne, &grdeinst(0)}};
    form::Combo CmbOktBer{*this, {"CmbOktBer", ohne, &grdeinst(0)}};
    form::Combo training_Combo{*this, {"training_Combo", ohne, &grdeinst(8)}};
    form::Combo prfnr_Comb{*this, {"prfnr_Comb", ohne, &grdeinst(8)}};
    form::Combo ComboPatch{*this, {"ComboPatch", ohne, &grdeinst(15)}};
    form::ControlArray<form::Label> lb15{*this, "lb15", klingt() ? 2 : 4, &grdeinst(15)};
    form::Picture pic15{*this, {"pic15", ohne, &grdeinst(15)}};
    form::Button klang_contr{*this, {"klang_contr", ohne, &grdeinst(14)}};
    form::ControlArray<form::Label> lb14{*this, "lb14", wennKlang({0, 1}), &grdeinst(14)};
    form::Slider HSliderVolume{*this, {"HSliderVolume", ohne, &grdeinst(14)}, 0, 127};
    /// Why nothing can be heard, and what to do.
    form::Label tonHinweis{*this, {"tonHinweis"}};
    form::Group aktionsbox{*this, {"aktionsbox"}};
    form::Button cmdHilfe{*this, {"cmdHilfe", ohne, &aktionsbox}};
    form::Button cmdOptionRead{*this, {"cmdOptionRead", ohne, &aktionsbox}};
    form::Button cmdOptionSave{*this, {"cmdOptionSave", ohne, &aktionsbox}};
    form::Button cmdZurueck{*this, {"cmdZurueck", ohne, &aktionsbox}};
    form::Button cmdOK{*this, {"cmdOK", ohne, &aktionsbox}};
    form::Label copyright{*this, {"copyright"}};
    form::Menu popPruefung{*this, {"popPruefung"}};
    form::MenuEntry popExamToggle{*this, {"popExamToggle", ohne, &popPruefung}};
    form::Timer start{*this, {"start"}, 200};
    form::Timer testtimer{*this, {"testtimer"}, 5000};
};

}  // namespace setup
