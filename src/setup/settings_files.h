#pragma once
#include "core/formular.h"
#include "setup/groups.h"

#include <string>

namespace setup {

/// Marking groups, and the settings files that carry their choices to another machine.
class SettingsFiles {
  public:
    /// @param aktionsbox holds the buttons.
    SettingsFiles(core::Formular& form, core::Programm& programm, const Groups& groups,
                  form::Group& aktionsbox, Zweig zweig);

    /// The settings file that the program was started with, once.
    void StartdateiAnwenden();

  private:
    void PruefungMarkieren(form::Group& gruppe);
    void popExamToggle_click();
    void cmdOptionSave_click();
    void DateiSchreiben(const std::string& pfad, const std::string& beschreibung);
    void cmdOptionRead_click();

    core::Formular& form_;
    core::Programm& p;
    form::Group* popGruppe_ = nullptr;  ///< of the last right-click

    /// How groups are marked, for those who write files; what a file prescribes, for those who use
    /// it.
    form::Label fileNote;
    form::Button cmdOptionRead;
    form::Button cmdOptionSave;
    form::Menu popPruefung;
    form::MenuEntry popExamToggle;
};

}  // namespace setup
