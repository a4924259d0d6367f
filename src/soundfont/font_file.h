#pragma once
#include <filesystem>

namespace soundfont {

/// Looks at the head of a plain file: the library complains on the terminal about what is no
/// soundfont, and would wait for a pipe.
bool isSoundfont(const std::filesystem::path& file);

}  // namespace soundfont
