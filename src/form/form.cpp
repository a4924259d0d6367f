#include "form/form.h"

#include "form/forms.h"

#include <algorithm>

namespace form {

Form::Form(Forms& forms, std::string name) : forms_(forms), name_(std::move(name)) {}

Form::~Form() = default;

MessageLoop& Form::loop() const { return forms_.loop(); }

Control* Form::find(const std::string& name, int index) const {
    const auto it = std::ranges::find_if(
        controls_, [&](const Control* c) { return c->name() == name && c->index() == index; });
    return it == controls_.end() ? nullptr : *it;
}

void Form::setCaption(std::string caption) {
    if (caption == caption_) return;
    caption_ = std::move(caption);
    changed();
}

void Form::setEnabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    changed();
}

void Form::setPointer(Pointer pointer) {
    if (pointer == pointer_) return;
    pointer_ = pointer;
    changed();
}

void Form::whiten() {
    if (whitened_) return;
    whitened_ = true;
    changed();
}

void Form::setVisible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    changed();
}

bool Form::guard(const std::string& procedure, const std::function<void()>& run) {
    struct Count {
        explicit Count(int& n) : n_(n) { ++n_; }
        ~Count() { --n_; }
        int& n_;
    } const count(running_);
    try {
        run();
        return true;
    } catch (const std::exception& fault) {
        failed(procedure, fault);
        return false;
    }
}

}  // namespace form
