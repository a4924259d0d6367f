#pragma once
#include "base/colour.h"
#include "form/signal.h"

#include <functional>
#include <string>
#include <utility>

namespace form {

class Form;
class Control;

enum class Kind {
    Button,
    Option,
    Combo,
    ListBox,
    Label,
    Panel,
    Picture,
    Slider,
    TextBox,
    Group,
    Menu,
    MenuEntry,
    Canvas,
    Timer
};

/// What of a control has changed.
enum class Aspect { Caption, Visible, Enabled, Colour, Value, Items, Picture };

/// A value of a control that its views hear of when it really changes. `control.caption = text`
/// sets it, `control.caption()` reads it.
template <class T>
class Property {
  public:
    Property(Control& owner, Aspect aspect, T value)
        : owner_(owner), aspect_(aspect), value_(std::move(value)) {}
    Property(const Property&) = delete;
    Property& operator=(const Property&) = delete;
    Property& operator=(T value);
    const T& operator()() const { return value_; }

  private:
    Control& owner_;
    Aspect aspect_;
    T value_;
};

/// What a control does when it is used. `procedure` is the text under which a failure is logged,
/// for example "cmdOK_click.".
struct Handler {
    std::string procedure;
    std::function<void()> run;
};

/// Where a control stands: its name, its index when it is a member of a control array, and the
/// control that holds it.
struct Place {
    static constexpr int noIndex = -1000;

    Place(std::string itsName, Control* heldBy = nullptr)
        : Place(std::move(itsName), noIndex, heldBy) {}
    Place(std::string itsName, int itsIndex, Control* heldBy = nullptr)
        : name(std::move(itsName)), index(itsIndex), container(heldBy) {}

    std::string name;
    int index;
    Control* container;
};

/// One control of a form, as a value that any toolkit can show. The form owns the order of its
/// controls; the control registers itself there.
class Control {
  public:
    Control(Form& form, Kind kind, Place place);
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    Form& form() const { return form_; }
    Kind kind() const { return kind_; }
    const std::string& name() const { return place_.name; }
    bool inArray() const { return place_.index != Place::noIndex; }
    int index() const { return place_.index; }
    Control* container() const { return place_.container; }
    void setContainer(Control& container) { place_.container = &container; }

    /// Name, and "_" with the index in arrays: the name under which views know it.
    std::string id() const;

    /// Visible and enabled, and everything that holds it too: the user can reach it.
    bool usable() const;

    Property<std::string> caption{*this, Aspect::Caption, {}};
    /// What a screen reader says when the caption alone does not tell; empty: the caption.
    Property<std::string> accessibleName{*this, Aspect::Caption, {}};
    Property<bool> visible{*this, Aspect::Visible, true};
    Property<bool> enabled{*this, Aspect::Enabled, true};
    Property<base::Colour> backColour{*this, Aspect::Colour, base::colours::white};
    Property<base::Colour> foreColour{*this, Aspect::Colour, base::colours::black};
    /// Told when the control is pointed at or has the focus; empty: nothing.
    Property<std::string> hint{*this, Aspect::Caption, {}};
    /// Whether a back colour was ever set: views leave the others in the look of the desktop.
    bool coloured() const { return coloured_; }
    std::string tag;

    Signal<Aspect> changed;
    void tell(Aspect aspect);

  protected:
    /// Runs a handler under the form's guard.
    void raise(const Handler& handler);

  private:
    Form& form_;
    Kind kind_;
    Place place_;
    bool coloured_ = false;
};

template <class T>
Property<T>& Property<T>::operator=(T value) {
    if (value == value_) return *this;
    value_ = std::move(value);
    owner_.tell(aspect_);
    return *this;
}

}  // namespace form
