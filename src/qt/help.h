#pragma once
#include "form/ports.h"

#include <memory>

class QTextBrowser;

namespace qt {

/// The program's own help window over the pages in its resources; beside it, the suite's help file
/// opens in the desktop's viewer when the suite has put one beside the program.
class QtHelp final : public form::Help {
  public:
    QtHelp();
    ~QtHelp() override;
    void open(const std::string& page, const std::string& language) override;

  private:
    std::unique_ptr<QTextBrowser> browser_;
};

}  // namespace qt
