#include "setup/choices.h"

#include "form/form.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace setup {

namespace {

using core::Zustand;

/// What options store, and which of them is chosen at first.
struct OptionField {
    std::string_view name;
    base::i16 Zustand::*field;
    int first = 0;
};
constexpr std::array optionFields{
    OptionField{"abfrage", &Zustand::abfrage},   OptionField{"frequenz", &Zustand::frequenz},
    OptionField{"stimm_g", &Zustand::stimmung},  OptionField{"an_zeig", &Zustand::an_zeig},
    OptionField{"final", &Zustand::final, 2},    OptionField{"abfolge", &Zustand::abfolge},
    OptionField{"ska_ausw", &Zustand::ska_ausw},
};

const OptionField& optionField(std::string_view name) {
    const auto field = std::ranges::find(optionFields, name, &OptionField::name);
    if (field == optionFields.end()) base::throwSubscript();
    return *field;
}

form::Combo* combo(const form::Form& form, const char* name) {
    return static_cast<form::Combo*>(form.find(name));
}

}  // namespace

void connect(const form::ControlArray<form::Option>& options, Zustand& z,
             const std::function<void()>& follow) {
    for (form::Option& option : options) {
        const OptionField& field = optionField(option.name());
        if (option.index() == field.first) option.choose();
        option.store = [&target = z.*field.field, &option] { target = option.index(); };
        option.onClick = {option.name() + "_click.", follow};
    }
}

int chosen(const form::Form& form, const Zustand& z, const char* name) {
    if (const form::Combo* list = combo(form, name)) return list->listIndex();
    return z.*optionField(name).field;
}

std::string chosenText(const form::Form& form, const Zustand& z, const char* name) {
    if (const form::Combo* list = combo(form, name)) return list->text();
    const form::Control* option = form.find(name, chosen(form, z, name));
    return option ? option->caption() : std::string();
}

void choose(const form::Form& form, const char* name, int value) {
    if (form::Combo* list = combo(form, name)) {
        list->item(value);
        return list->setListIndex(value);
    }
    auto* option = static_cast<form::Option*>(form.find(name, value));
    if (!option) base::throwSubscript();
    option->choose();
}

}  // namespace setup
