// Marking groups, and the settings file that carries their choices to another machine.
#include "setup/datei_formulare.h"
#include "setup/einstellung.h"
#include "setup/einstellungsdatei.h"

#include <system_error>
#include <utility>

namespace setup {

void Einstellung::PruefungMarkieren(form::Group& gruppe) {
    if (!p.aufruf.pruefEdit) return;
    popGruppe_ = &gruppe;
    popExamToggle.checked = gruppe.tag == pruefungsMarke;
    popPruefung.open();
}

void Einstellung::popExamToggle_click() {
    if (!popGruppe_) return;
    const bool marke = !popExamToggle.checked();
    popExamToggle.checked = marke;
    popGruppe_->tag = marke ? pruefungsMarke : "";
    popGruppe_->backColour = marke ? farben::pruefung : farben::offen;
}

void Einstellung::cmdOptionSave_click() {
    if (zweig_ == Zweig::Musiklehre) return;
    forms().runModal("frmSave");
    auto* formular = static_cast<FrmSave*>(forms().loaded("frmSave"));
    if (!formular) return;
    const auto& wahl = formular->SaveOptions;
    // A failure is told here, so that the dialog goes in any case.
    if (!wahl.empty())
        guard("cmdOptionSave_click.", [&] { DateiSchreiben(wahl.at("File"), wahl.at("Desc")); });
    forms().unload("frmSave");
}

void Einstellung::DateiSchreiben(const std::string& pfad, const std::string& beschreibung) {
    if (pfad.empty()) throw base::RuntimeError(base::ErrorNumber::PathAccess, Wort(889));
    try {
        EinstellungenSchreiben(pfad, EinstellungenText(*this, z.ueb_typ, beschreibung));
    } catch (const std::system_error& fehler) {
        throw base::RuntimeError(
            base::ErrorNumber::PathAccess,
            core::eingesetzt(Wort(834), pfad) + " (" + fehler.code().message() + ")");
    }
}

void Einstellung::cmdOptionRead_click() {
    if (zweig_ == Zweig::Musiklehre) return;
    forms().runModal("frmLoad");
    auto* formular = static_cast<FrmLoad*>(forms().loaded("frmLoad"));
    if (!formular) return;
    const std::string pfad = formular->SettingFile;
    forms().unload("frmLoad");
    if (!pfad.empty()) EinstellungenAnwenden(*this, EinstellungenLesen(pfad));
}

/// The settings file that the program was started with, once.
void Einstellung::StartdateiAnwenden() {
    const std::string pfad = std::exchange(p.aufruf.startdatei, "");
    if (pfad.empty()) return;
    guard("StartdateiAnwenden.", [&] {
        const Einstellungssatz satz = EinstellungenLesen(pfad);
        if (satz.leer())
            throw base::RuntimeError(base::ErrorNumber::PathAccess,
                                     core::eingesetzt(Wort(835), pfad));
        EinstellungenAnwenden(*this, satz);
    });
}

}  // namespace setup
