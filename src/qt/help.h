#pragma once
#include "form/ports.h"
#include "suite/help_window.h"

#include <functional>
#include <memory>

namespace qt {

/// The suite's help window over the pages in the program's resources; beside it, the suite's help
/// file opens in the desktop's viewer when the suite has put one beside the program.
class QtHelp final : public form::Help {
  public:
    QtHelp();
    ~QtHelp() override;
    void open(const std::string& page, const std::string& language) override;
    /// What stands on the window's buttons, asked whenever it opens.
    std::function<suite::HelpWindow::Texts()> texts;

  private:
    std::unique_ptr<suite::HelpWindow> window_;
};

}  // namespace qt
