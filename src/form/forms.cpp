#include "form/forms.h"

#include "form/controls.h"
#include "form/message_loop.h"

#include <algorithm>

namespace form {

Forms::~Forms() = default;

Form* Forms::loaded(const std::string& name) const {
    const auto it = std::ranges::find(loaded_, name, [](const auto& f) { return f->name(); });
    return it == loaded_.end() ? nullptr : it->get();
}

Form& Forms::load(const std::string& name) {
    if (Form* there = loaded(name)) return *there;
    bury();
    loaded_.push_back(factories_.at(name)());
    Form& form = *loaded_.back();
    made(form);
    form.load();
    return form;
}

void Forms::show(const std::string& name) {
    Form& form = load(name);
    form.setVisible(true);
    form.activate();
}

void Forms::runModal(const std::string& name) {
    load(name);
    bool seen = false;
    loop_.runUntil([this, &name, &seen] {
        const Form* form = loaded(name);
        seen = seen || (form && form->visible());
        return !form || (seen && !form->visible());
    });
}

void Forms::hide(const std::string& name) {
    if (Form* form = loaded(name)) form->setVisible(false);
}

void Forms::unload(const std::string& name) {
    Form* form = loaded(name);
    if (!form) return;
    form->unloading();
    for (Control* control : form->controls())
        if (control->kind() == Kind::Timer) static_cast<Timer*>(control)->stop();
    form->setVisible(false);
    const auto it = std::ranges::find(loaded_, form, [](const auto& f) { return f.get(); });
    if (it == loaded_.end()) return;
    unloaded_.push_back(std::move(*it));
    loaded_.erase(it);
    gone(*form);
    bury();
    if (loaded_.empty()) empty();
}

void Forms::unloadAll() {
    while (!loaded_.empty()) unload(std::string(loaded_.back()->name()));
}

/// A form whose handler is still running is looked at again when the loop has gone on.
void Forms::bury() {
    loop_.post([weak = std::weak_ptr(self_)] {
        const auto self = weak.lock();
        if (!self) return;
        auto& forms = (*self)->unloaded_;
        std::erase_if(forms, [](const auto& form) { return form->running() == 0; });
    });
}

}  // namespace form
