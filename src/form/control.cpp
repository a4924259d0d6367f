#include "form/control.h"

#include "form/form.h"

namespace form {

Control::Control(Form& form, Kind kind, Place place)
    : form_(form), kind_(kind), place_(std::move(place)) {
    form_.adopt(*this);
}

Control::~Control() = default;

std::string Control::id() const {
    return inArray() ? place_.name + "_" + std::to_string(place_.index) : place_.name;
}

bool Control::usable() const {
    if (!form_.enabled()) return false;
    for (const Control* c = this; c; c = c->container())
        if (!c->visible() || !c->enabled()) return false;
    return true;
}

void Control::tell(Aspect aspect) {
    if (aspect == Aspect::Colour) coloured_ = true;
    changed(aspect);
}

void Control::raise(const Handler& handler) {
    if (handler.run) form_.handle(handler);
}

}  // namespace form
