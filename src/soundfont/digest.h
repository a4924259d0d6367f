#pragma once
#include <filesystem>
#include <string>
#include <string_view>

namespace soundfont {

/// Tells one content from another: 32 hexadecimal digits.
std::string digestOf(std::string_view content);
/// The same of a file, read in parts; empty when it cannot be read.
std::string digestOfFile(const std::filesystem::path& file);

}  // namespace soundfont
