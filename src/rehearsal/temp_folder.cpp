#include "rehearsal/temp_folder.h"

#include <cstdlib>
#include <stdexcept>
#include <string>

namespace rehearsal {

namespace {

/// In memory where the system offers it: the records of many runs need not reach a disk.
std::filesystem::path parent() {
    const std::filesystem::path memory = "/dev/shm";
    std::error_code none;
    const auto mode = std::filesystem::status(memory, none).permissions();
    const bool open = (mode & std::filesystem::perms::others_write) != std::filesystem::perms::none;
    return !none && open ? memory : std::filesystem::temp_directory_path();
}

}  // namespace

TempFolder::TempFolder() {
    // The six places are filled in by the system, so that no two runs share a folder.
    const std::string places(6, 'X');
    std::string pattern = (parent() / ("zepha9-sim" + places)).string();
    if (!mkdtemp(pattern.data()))
        throw std::runtime_error("no folder can be made as " + pattern + ": check TMPDIR");
    path_ = pattern;
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

}  // namespace rehearsal
