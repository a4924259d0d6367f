#pragma once
#include "core/worte.h"

#include <string>

namespace staff {

/// A spelled note in words of the language, for example "F sharp" or "Fis".
/// @param qz fifths number, 0..34.
std::string noteName(core::Worte& worte, int qz);

}  // namespace staff
