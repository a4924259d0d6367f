#pragma once
#include "form/ports.h"

#include <functional>
#include <string>

class QWidget;

namespace qt {

/// Prints the window of a form as a picture that fills the page.
class QtPrinter final : public form::Printer {
  public:
    using WindowOf = std::function<QWidget*(const form::Form&)>;
    explicit QtPrinter(WindowOf windowOf) : windowOf_(std::move(windowOf)) {}
    void print(form::Form& form) override;

  private:
    WindowOf windowOf_;
};

/// Prints a widget in landscape to a PDF file, or on the default printer for an empty path.
/// @throws std::runtime_error saying what failed and what to do.
void printWidget(QWidget& widget, const std::string& pdf);

}  // namespace qt
