#pragma once
#include "core/programm.h"

namespace core {

/// Stands in place of the continuation of a saved training while there is none.
inline constexpr const char* keineFortsetzung = "---------------";

/// Offers that continuation on a set-up form, or takes the offer away, and selects the mode
/// `gewaehlt` through its handler. Does nothing when that form is not loaded.
void FortsetzungAnbieten(Programm& p, const std::string& formular, bool vorhanden, int gewaehlt);

}  // namespace core
