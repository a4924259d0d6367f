#pragma once
#include "core/formular.h"
#include "core/wort.h"

#include <map>
#include <string>

namespace setup {

/// A small dialog that asks for a file: the file's path, a button that opens the file dialog, a
/// description, and OK. It shows itself when it is loaded.
class DateiFormular : public core::Formular {
  public:
    void load() override { forms().show(name()); }
    bool key(form::Key key) override;

  protected:
    /// @param feld name of the text boxes. @param worte caption and label of the path.
    DateiFormular(core::Programm& programm, const std::string& name, const std::string& feld,
                  const std::string& label, core::wort::Id titelWort, core::wort::Id pfadWort);
    /// Opens the file dialog and takes what was chosen.
    virtual void cmdSave_click() = 0;
    virtual void cmdOK_click() = 0;

    form::TextBox& txt(int i) const { return txt_(i); }

  private:
    form::Label pfadLabel_;
    form::ControlArray<form::TextBox> txt_;
    form::Label beschreibung{*this, {"lblDesc"}};
    /// What a file cannot hold.
    form::Label limits{*this, {"limits"}};
    form::Button cmdSave{*this, {"cmdSave"}};
    form::Button cmdOK{*this, {"cmdOK"}};
};

/// Where settings are to be saved, and what they are.
class FrmSave final : public DateiFormular {
  public:
    explicit FrmSave(core::Programm& programm)
        : DateiFormular(programm, "frmSave", "txtSave", "lblSave", core::wort::saveFormTitle,
                        core::wort::saveFormPath) {}
    void closeBox() override;

    /// "File" and "Desc"; empty when the user gave up.
    std::map<std::string, std::string> SaveOptions;

  private:
    void cmdSave_click() override;
    void cmdOK_click() override;
};

/// Which settings are to be loaded; tells what they are before.
class FrmLoad final : public DateiFormular {
  public:
    explicit FrmLoad(core::Programm& programm)
        : DateiFormular(programm, "frmLoad", "txtLoad", "lblLoad", core::wort::loadFormTitle,
                        core::wort::loadFormPath) {}
    void closeBox() override;

    /// Path; empty when the user gave up.
    std::string SettingFile;

  private:
    void cmdSave_click() override;
    void cmdOK_click() override;
};

}  // namespace setup
