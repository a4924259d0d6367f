#pragma once
#include <filesystem>

namespace base {

/// Where the running program is.
std::filesystem::path programFolder();

/// A part of the suite that is loaded or started by its programs: beside them, or in
/// ../lib/melvora.
std::filesystem::path suitePart(const char* name);

}  // namespace base
