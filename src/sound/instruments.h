#pragma once
#include "form/controls.h"

#include <array>

namespace sound {

/// Names of the General MIDI programs 0..127.
extern const std::array<const char*, 128> instrumentNames;

/// Adds the 128 instruments to a combo: its list index is the program number.
void Klangliste(form::Combo& combo);

}  // namespace sound
