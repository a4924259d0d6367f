#pragma once
#include "form/ports.h"

#include <functional>
#include <string>

class QWidget;

namespace qt {

/// Prints what stands on a form, as large as the page allows.
class QtPrinter final : public form::Printer {
  public:
    /// The widget that shows what of a form is printed, nullptr for a form without one.
    using PaperOf = std::function<QWidget*(const form::Form&)>;
    explicit QtPrinter(PaperOf paperOf) : paperOf_(std::move(paperOf)) {}
    void print(form::Form& form) override;

  private:
    PaperOf paperOf_;
};

/// Prints the labels and bars of a widget in landscape, to a PDF file or on the default printer for
/// an empty path, on the paper that the printer has. @throws form::PrintFault
void printWidget(const QWidget& widget, const std::string& pdf);

}  // namespace qt
