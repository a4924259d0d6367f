#pragma once
#include "form/ports.h"

#include <functional>
#include <string>

namespace qt {

class QtDialogs final : public form::Dialogs {
  public:
    /// What stands on the buttons.
    struct Answers {
        std::string ok = "OK", yes = "Ja", no = "Nein";
    };
    /// Asked at every box, so that the answers follow the language of the program.
    std::function<Answers()> answers = [] { return Answers{}; };

    void message(form::Icon icon, const std::string& title, const std::string& text) override;
    bool askYesNo(const std::string& title, const std::string& text) override;
    bool confirm(const std::string& title, const std::string& text) override;
    std::string askOpenFile(const FileQuestion& question) override;
    std::string askSaveFile(const FileQuestion& question) override;
};

}  // namespace qt
