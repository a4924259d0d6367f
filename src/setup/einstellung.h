#pragma once
#include "core/formular.h"
#include "results/skalaxml.h"
#include "results/wertung.h"
#include "setup/groups.h"
#include "setup/mode_choice.h"
#include "setup/presets.h"
#include "setup/regeln.h"
#include "setup/saved_choice.h"
#include "setup/scale_choice.h"
#include "setup/settings_files.h"
#include "setup/sound_panel.h"
#include "setup/tone_range.h"

#include <optional>
#include <string>

namespace setup {

/// The set-up form: every choice of an exercise, in coloured groups, and a sound check. It writes
/// the choices into the shared state as they are made, and opens the worksheet. Its parts hold
/// their own controls and handlers; what one choice means for another stands here.
class Einstellung final : public core::Formular {
  public:
    /// @param ausgabe the form's MIDI control.
    Einstellung(core::Programm& programm, results::Wertung& wertung, results::Skalaxml& xml,
                sound::Midi& midi, sound::MidiOutput& ausgabe, Zweig zweig);

    void load() override { start.start(); }
    void closeBox() override { cmdZurueck_click(); }
    void unloading() override { sound_.disconnect(); }
    bool key(form::Key key) override;

  protected:
    void nachFehler(const std::string& prozedur) override;

  private:
    void Beschriften();
    void hideWhatIsNotOffered();
    void Verbinden();
    void start_timer();
    void LadewerteSetzen();
    void CombosFuellen();

    void skal_typ_cmb_click();
    void RegelnAnwenden();
    void final_click();
    void abfolge_click();
    void pickingShown(bool shown);
    void checkRuns(bool running);

    void cmdOK_click();
    void EinstDatSave();
    void cmdZurueck_click();

    bool klingt() const { return setup::klingt(zweig_); }
    /// All categories and all ways of answering are on offer.
    bool namingByEar() const { return klingt() && z.ueb_typ == core::uebung::bestimmen; }

    results::Wertung& wertung_;
    results::Skalaxml& xml_;
    Zweig zweig_;
    bool abbruch_ = false;

    Groups groups_{*this, zweig_};
    form::Group aktionsbox{*this, {"aktionsbox"}};

    ToneRange range_{*this, p, zweig_, groups_(group::range)};
    ScaleChoice scales_{*this, p, groups_(group::scales), groups_(group::single)};
    SoundPanel sound_;
    SavedChoice saved_{*this, p, scales_, zweig_};
    ModeChoice mode_{*this, p, zweig_, groups_, sound_, saved_};
    Presets presets_{*this, p, scales_, saved_, aktionsbox};
    SettingsFiles files_{*this, p, groups_, aktionsbox, zweig_};

    form::Combo skal_typ_cmb{*this, {"skal_typ_cmb", &groups_(group::category)}};
    form::ControlArray<form::Option> abfolge{*this, "abfolge", 2, &groups_(group::order)};
    form::Label lb4{*this, {"lb4", &groups_(group::order)}};
    form::Combo Combo_richtung{*this, {"Combo_richtung", &groups_(group::order)}};
    form::ControlArray<form::Option> final{*this, "final", 3, &groups_(group::key)};
    form::ControlArray<form::Option> abfrage{*this, "abfrage", 2, &groups_(group::next)};
    form::ControlArray<form::Option> an_zeig{*this, "an_zeig", 2, &groups_(group::answers)};
    form::ControlArray<form::Option> stimm_g{*this, "stimm_g", wennKlang(zweig_, {0, 1, 2}),
                                             groups_.find(group::tuning)};
    /// Choice of a meantone tuning: hidden, there is only one. In a branch with sound.
    std::optional<form::Combo> Combo_mt;
    form::ControlArray<form::Option> frequenz{*this, "frequenz", wennKlang(zweig_, {0, 1}),
                                              groups_.find(group::reference)};
    form::Button cmdHilfe{*this, {"cmdHilfe", &aktionsbox}};
    form::Button cmdZurueck{*this, {"cmdZurueck", &aktionsbox}};
    form::Button cmdOK{*this, {"cmdOK", &aktionsbox}};
    form::Label copyright{*this, {"copyright"}};
    form::Timer start{*this, {"start"}, 200};
    form::Timer testtimer{*this, {"testtimer"}, 5000};
};

}  // namespace setup
