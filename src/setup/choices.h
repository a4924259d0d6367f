#pragma once
#include "core/zustand.h"
#include "form/controls.h"

#include <functional>
#include <string>

namespace setup {

/// Makes options store their index in the field that belongs to their name, after choosing the one
/// that is chosen at first, which stores nothing.
/// @param follow runs, with `NAME_click.` as its procedure, when another option becomes chosen.
void connect(const form::ControlArray<form::Option>& options, core::Zustand& z,
             const std::function<void()>& follow = {});

// A choice of the form goes by the name of its combo, or of its options.

/// List index of a combo; the value that options have stored, which may be another than they show.
int chosen(const form::Form& form, const core::Zustand& z, const char* name);
/// As the form words that value; "" when it offers no such option.
std::string chosenText(const form::Form& form, const core::Zustand& z, const char* name);
/// Chooses as a user would, also what is disabled or hidden.
/// @throws run-time error 9 for a value that the form has not.
void choose(const form::Form& form, const char* name, int value);

}  // namespace setup
