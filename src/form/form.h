#pragma once
#include "form/control.h"
#include "form/signal.h"

#include <exception>
#include <functional>
#include <string>
#include <vector>

namespace form {

class Forms;
class MessageLoop;

/// The keys that mean something to a form as a whole.
struct Key {
    enum class Kind { Digit, Space, Enter, Escape, Help };
    Kind kind;
    /// 0..9 for `Digit`.
    int digit = 0;
};

enum class Pointer { Arrow, Hourglass };

/// A window as a value: named controls in an order of their own, and handlers as members of the
/// derived class. `Forms` owns it from load to unload.
class Form {
  public:
    Form(Forms& forms, std::string name);
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& name() const { return name_; }
    Forms& forms() const { return forms_; }
    MessageLoop& loop() const;

    const std::vector<Control*>& controls() const { return controls_; }
    /// nullptr when the form has no such control.
    Control* find(const std::string& name, int index = Place::noIndex) const;

    const std::string& caption() const { return caption_; }
    void setCaption(std::string caption);
    bool visible() const { return visible_; }
    bool enabled() const { return enabled_; }
    void setEnabled(bool enabled);
    Pointer pointer() const { return pointer_; }
    void setPointer(Pointer pointer);
    /// White paper look, as for printing.
    bool whitened() const { return whitened_; }
    void whiten();

    /// Runs once, right after the form was made.
    virtual void load() {}
    /// Runs when the form is shown or comes to the front.
    virtual void activate() {}
    /// The user's close box.
    virtual void closeBox() = 0;
    /// Runs before the form goes, with its controls still alive.
    virtual void unloading() {}
    /// Enter means something to the form even where a button has the focus.
    virtual bool claimsEnter() const { return false; }
    /// @return whether the key meant something here.
    virtual bool key(Key) { return false; }

    /// Runs a handler of this form; what it throws goes to `failed`.
    void handle(const Handler& handler) { guard(handler.procedure, handler.run); }
    /// @return false when `run` has thrown.
    bool guard(const std::string& procedure, const std::function<void()>& run);
    /// Handlers of this form that are running now, one inside the other.
    int running() const { return running_; }

    /// Something of the form itself has changed: caption, visible, enabled, pointer, look.
    Signal<> changed;

  protected:
    /// What to do about a handler that has thrown.
    virtual void failed(const std::string& procedure, const std::exception& fault) = 0;

  private:
    friend class Control;
    friend class Forms;
    void adopt(Control& control) { controls_.push_back(&control); }
    void setVisible(bool visible);

    Forms& forms_;
    std::string name_;
    std::string caption_;
    std::vector<Control*> controls_;
    bool visible_ = false;
    bool enabled_ = true;
    bool whitened_ = false;
    Pointer pointer_ = Pointer::Arrow;
    int running_ = 0;
};

}  // namespace form
