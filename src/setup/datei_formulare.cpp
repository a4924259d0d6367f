#include "setup/datei_formulare.h"

#include "setup/einstellungsdatei.h"

#include <filesystem>

namespace setup {

namespace wort = core::wort;

namespace {

/// The folder of the settings files; made when it is first needed. Where it cannot be made the file
/// dialog opens elsewhere.
std::string stueckeOrdner(const core::Programm& p) {
    std::error_code fehler;
    std::filesystem::create_directories(p.aufruf.stueckeOrdner, fehler);
    return p.aufruf.stueckeOrdner;
}

}  // namespace

DateiFormular::DateiFormular(core::Programm& programm, const std::string& name,
                             const std::string& feld, const std::string& label, wort::Id titelWort,
                             wort::Id pfadWort)
    : Formular(programm, name),
      pfadLabel_(*this, {label}),
      txt_(*this, feld, 2, nullptr, form::TextBox::Size::Line) {
    setCaption(Wort(titelWort));
    beschriften({{pfadLabel_, pfadWort},
                 {beschreibung, wort::fileDescription},
                 {limits, wort::fileLimits},
                 {cmdOK, wort::ok}});
    limits.visible = titelWort == wort::saveFormTitle;
    cmdSave.caption = "...";
    cmdSave.accessibleName = Wort(wort::chooseFile);
    txt(0).accessibleName = Wort(pfadWort);
    txt(1).accessibleName = Wort(wort::fileDescription);
    cmdSave.onClick = {"cmdSave_click.", [this] { cmdSave_click(); }};
    cmdOK.onClick = {"cmdOK_click.", [this] { cmdOK_click(); }};
}

bool DateiFormular::key(form::Key key) {
    using enum form::Key::Kind;
    if (key.kind == Enter) cmdOK.click();
    if (key.kind == Escape) closeBox();
    return key.kind == Enter || key.kind == Escape || Formular::key(key);
}

void FrmSave::closeBox() {
    SaveOptions.clear();
    forms().hide(name());
}

void FrmSave::cmdSave_click() {
    const std::string pfad = p.ports.dialogs.askSaveFile({Wort(wort::saveDialogTitle),
                                                          stueckeOrdner(p) + "/VESHNA_Set_XX.mvs",
                                                          Wort(wort::settingsFiles), "*.mvs"});
    if (!pfad.empty()) txt(0).text = pfad;
}

void FrmSave::cmdOK_click() {
    SaveOptions = {{"File", txt(0).text()}, {"Desc", txt(1).text()}};
    forms().hide(name());
}

void FrmLoad::closeBox() {
    SettingFile.clear();
    forms().hide(name());
}

void FrmLoad::cmdSave_click() {
    const std::string pfad = p.ports.dialogs.askOpenFile(
        {Wort(wort::loadFormTitle), stueckeOrdner(p), Wort(wort::settingsFiles), "*.mvs"});
    if (pfad.empty()) return;
    txt(0).text = pfad;
    const auto kopf = EinstellungenLesen(pfad).kopf;
    const auto modul = kopf.find("modul");
    if (modul == kopf.end())
        throw base::RuntimeError(base::ErrorNumber::PathAccess,
                                 core::eingesetzt(Wort(wort::notASettingsFile), pfad));
    const auto an = [&](const char* name) {
        const auto teil = kopf.find(name);
        return teil == kopf.end() ? std::string() : teil->second;
    };
    txt(1).text = modul->second + " Typ " + an("type") + "  - " + an("description");
}

void FrmLoad::cmdOK_click() {
    SettingFile = txt(0).text();
    forms().hide(name());
}

}  // namespace setup
