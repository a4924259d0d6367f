#pragma once
#include "core/programm.h"

namespace core {

/// Stands in place of the continuation of a saved training while there is none.
inline constexpr const char* keineFortsetzung = "---------------";

/// "1", "4", "1b", "4b": exercise and branch in the keys of the host's records. "E" and it holds
/// the settings of a saved training, "A" and it where it was left.
std::string satz(const Zustand& z);

/// Offers that continuation on a set-up form, or takes the offer away, and selects the mode
/// `gewaehlt` through its handler. Does nothing when that form is not loaded.
void offerContinuation(Programm& p, const std::string& formular, bool vorhanden, int gewaehlt);

}  // namespace core
