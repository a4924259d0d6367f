#include "setup/settings_files.h"

#include "core/wort.h"
#include "setup/datei_formulare.h"
#include "setup/einstellungsdatei.h"

#include <system_error>
#include <utility>

namespace setup {

namespace wort = core::wort;

SettingsFiles::SettingsFiles(core::Formular& form, core::Programm& programm, const Groups& groups,
                             form::Group& aktionsbox, Zweig zweig)
    : form_(form),
      p(programm),
      fileNote(form, {"fileNote"}),
      cmdOptionRead(form, {"cmdOptionRead", &aktionsbox}),
      cmdOptionSave(form, {"cmdOptionSave", &aktionsbox}),
      popPruefung(form, {"popPruefung"}),
      popExamToggle(form, {"popExamToggle", &popPruefung}) {
    const bool dateien = p.aufruf.pruefEdit && klingt(zweig);
    fileNote.visible = dateien;
    fileNote.caption = p.Wort(wort::howToMark);
    cmdOptionRead.visible = dateien;
    cmdOptionSave.visible = dateien;
    form.beschriften({{cmdOptionRead, wort::readSettings},
                      {cmdOptionSave, wort::saveSettings},
                      {popExamToggle, wort::markGroup}});
    cmdOptionRead.onClick = {"cmdOptionRead_click.", [this] { cmdOptionRead_click(); }};
    cmdOptionSave.onClick = {"cmdOptionSave_click.", [this] { cmdOptionSave_click(); }};
    popExamToggle.onClick = {"popExamToggle_click.", [this] { popExamToggle_click(); }};
    for (form::Group& gruppe : groups)
        gruppe.onContext = {"grdeinst_MouseUp.", [this, &gruppe] { PruefungMarkieren(gruppe); }};
}

void SettingsFiles::PruefungMarkieren(form::Group& gruppe) {
    if (!p.aufruf.pruefEdit) return;
    popGruppe_ = &gruppe;
    popExamToggle.checked = gruppe.tag == pruefungsMarke;
    popPruefung.open();
}

void SettingsFiles::popExamToggle_click() {
    if (!popGruppe_) return;
    const bool marke = !popExamToggle.checked();
    popExamToggle.checked = marke;
    popGruppe_->tag = marke ? pruefungsMarke : "";
    popGruppe_->backColour = marke ? farben::pruefung : farben::offen;
}

void SettingsFiles::cmdOptionSave_click() {
    form::Forms& forms = form_.forms();
    forms.runModal("frmSave");
    auto* formular = static_cast<FrmSave*>(forms.loaded("frmSave"));
    if (!formular) return;
    const auto& wahl = formular->SaveOptions;
    // A failure is told here, so that the dialog goes in any case.
    if (!wahl.empty())
        form_.guard("cmdOptionSave_click.",
                    [&] { DateiSchreiben(wahl.at("File"), wahl.at("Desc")); });
    forms.unload("frmSave");
}

void SettingsFiles::DateiSchreiben(const std::string& pfad, const std::string& beschreibung) {
    if (pfad.empty())
        throw base::RuntimeError(base::ErrorNumber::PathAccess, p.Wort(wort::nameFileFirst));
    try {
        EinstellungenSchreiben(pfad, EinstellungenText(form_, p.zustand.ueb_typ, beschreibung));
    } catch (const std::system_error& fehler) {
        throw base::RuntimeError(base::ErrorNumber::PathAccess,
                                 core::eingesetzt(p.Wort(wort::settingsNotWritten), pfad) + " (" +
                                     fehler.code().message() + ")");
    }
}

void SettingsFiles::cmdOptionRead_click() {
    form::Forms& forms = form_.forms();
    forms.runModal("frmLoad");
    auto* formular = static_cast<FrmLoad*>(forms.loaded("frmLoad"));
    if (!formular) return;
    const std::string pfad = formular->SettingFile;
    forms.unload("frmLoad");
    if (!pfad.empty()) EinstellungenAnwenden(form_, EinstellungenLesen(pfad));
}

void SettingsFiles::StartdateiAnwenden() {
    const std::string pfad = std::exchange(p.aufruf.startdatei, "");
    if (pfad.empty()) return;
    form_.guard("StartdateiAnwenden.", [&] {
        const Einstellungssatz satz = EinstellungenLesen(pfad);
        if (satz.leer())
            throw base::RuntimeError(base::ErrorNumber::PathAccess,
                                     core::eingesetzt(p.Wort(wort::notASettingsFile), pfad));
        EinstellungenAnwenden(form_, satz);
        const auto description = satz.kopf.find("description");
        fileNote.caption =
            core::eingesetzt(p.Wort(wort::setByTeacher),
                             description == satz.kopf.end() ? std::string() : description->second);
        fileNote.visible = true;
    });
}

}  // namespace setup
