#pragma once
#include "form/controls.h"
#include "form/form.h"

#include <QWidget>

#include <memory>
#include <string>
#include <vector>

class QPushButton;

namespace staff {
class Canvas;
}

namespace qt {

class WindowKeys;

/// Ties the controls of a form to widgets: what the model says is shown, what the user does is told
/// to the model. One function binds each kind of control; none decides anything.
class Binder {
  public:
    Binder(form::Form& form, QWidget& window, WindowKeys& keys)
        : form_(form), window_(window), keys_(keys) {}

    form::Form& form() const { return form_; }

    /// A new widget for a control, in the place where the layout wants it.
    /// @throws std::out_of_range for a control that the form has not.
    QWidget* operator()(const std::string& name, int index = form::Place::noIndex);
    bool has(const std::string& name, int index = form::Place::noIndex) const {
        return form_.find(name, index) != nullptr;
    }
    /// A panel that shows how far what sounds has come.
    QWidget* playMark(form::Panel& control);
    /// Follows a control's changes for as long as the window lives.
    void follow(form::Control& control, std::function<void(form::Aspect)> listener);
    /// Name, accessible name, visible and enabled: what all widgets share.
    void common(form::Control& control, QWidget& widget);

    template <class C>
    C& control(const std::string& name, int index = form::Place::noIndex) const {
        return static_cast<C&>(found(name, index));
    }

  private:
    form::Control& found(const std::string& name, int index) const;
    QWidget* label(form::Label& control);
    QWidget* textBox(form::TextBox& control);
    QWidget* textLine(form::TextBox& control);
    template <class W>
    QWidget* textPage(W* text, form::TextBox& control, void (W::*setText)(const QString&));
    QWidget* button(form::Button& control);
    QWidget* panel(form::Panel& control);
    QWidget* judged(QPushButton& button, form::Panel& control);
    QWidget* option(form::Option& control);
    QWidget* combo(form::Combo& control);
    QWidget* listBox(form::ListBox& control);
    QWidget* slider(form::Slider& control);
    QWidget* picture(form::Picture& control);
    QWidget* canvas(staff::Canvas& control);
    QWidget* group(form::Group& control);
    QWidget* menu(form::Menu& control);
    template <class C>
    QPushButton* pushButton(C& control);

    form::Form& form_;
    QWidget& window_;
    WindowKeys& keys_;
    std::vector<form::Connection> connections_;
};

}  // namespace qt
