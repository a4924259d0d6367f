#pragma once
#include "form/forms.h"
#include "qt/form_window.h"

#include <map>
#include <memory>
#include <optional>

namespace qt {

/// Gives every form of a program its window, for as long as the form is loaded.
class Windows {
  public:
    explicit Windows(form::Forms& forms);
    ~Windows();
    /// nullptr for a form without a window.
    FormWindow* of(const form::Form& form) const;

  private:
    struct Later {
        void operator()(FormWindow* window) const { window->deleteLater(); }
    };
    std::optional<QPoint> middle_;  ///< of the window that was hidden last
    std::map<const form::Form*, std::unique_ptr<FormWindow, Later>> windows_;
    form::Connection made_, gone_;
};

// The layouts, one a form.
void layoutGrdEinst(FormWindow& window);
void layoutEinstellung(FormWindow& window);
void layoutBestimmen(FormWindow& window);
void layoutSchreiben(FormWindow& window);
void layoutTestergebnis(FormWindow& window);
void layoutFrmMessage(FormWindow& window);
void layoutFrmSave(FormWindow& window);
void layoutFrmLoad(FormWindow& window);

}  // namespace qt
