#pragma once
#include <filesystem>
#include <vector>

namespace fontfile {

/// Looks at the head of a plain file: the library complains on the terminal about what is no
/// soundfont, and would wait for a pipe.
bool isSoundfont(const std::filesystem::path& file);

/// The soundfonts in the usual folders, each once, folder by folder in the order of their names.
std::vector<std::filesystem::path> installedFonts();

}  // namespace fontfile
