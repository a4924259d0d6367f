#pragma once
#include "core/zustand.h"
#include "form/form.h"
#include "setup/regeln.h"

#include <string>
#include <vector>

namespace setup {

/// The recap of the settings for result form and record, as `einst_liste` holds it: highest index,
/// then label (in German in every language) and value of each choice that is in force.
/// @param skalen texts of the single scales chosen.
std::vector<std::string> recap(const form::Form& form, const core::Zustand& z, Zweig zweig,
                               const std::vector<std::string>& skalen);

}  // namespace setup
