#pragma once
#include "form/ports.h"

namespace qt {

class QtDialogs final : public form::Dialogs {
  public:
    void message(form::Icon icon, const std::string& title, const std::string& text) override;
    bool askYesNo(const std::string& title, const std::string& text) override;
    std::string askOpenFile(const FileQuestion& question) override;
    std::string askSaveFile(const FileQuestion& question) override;
};

}  // namespace qt
