#pragma once
#include "core/worte.h"
#include "form/controls.h"

#include <array>

namespace sound {

/// Names of the General MIDI programs 0..127, as records have them in every language.
extern const std::array<const char*, 128> instrumentNames;

/// Adds the 128 instruments to a combo, shown by their words: its list index is the program number.
void Klangliste(form::Combo& combo, core::Worte& worte);

}  // namespace sound
