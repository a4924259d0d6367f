#pragma once
#include <cstdint>
#include <filesystem>
#include <vector>

namespace fontfile {

/// Looks at the head of a plain file: the library complains on the terminal about what is no
/// soundfont, and would wait for a pipe.
bool isSoundfont(const std::filesystem::path& file);

/// Tells whether a path still leads to the same content, without reading it.
struct Mark {
    std::filesystem::file_time_type written;
    std::uintmax_t size = 0;
    bool operator==(const Mark&) const = default;
};
/// One of its own for all that cannot be reached.
Mark markOf(const std::filesystem::path& file);

/// The soundfonts in the usual folders, each once, folder by folder in the order of their names.
std::vector<std::filesystem::path> installedFonts();

}  // namespace fontfile
