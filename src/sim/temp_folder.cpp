#include "sim/temp_folder.h"

#include <cstdlib>
#include <stdexcept>
#include <string>

namespace sim {

TempFolder::TempFolder() {
    // The six places are filled in by the system, so that no two runs share a folder.
    const std::string places(6, 'X');
    std::string pattern =
        (std::filesystem::temp_directory_path() / ("zepha9-sim" + places)).string();
    if (!mkdtemp(pattern.data()))
        throw std::runtime_error("no folder can be made as " + pattern + ": check TMPDIR");
    path_ = pattern;
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

}  // namespace sim
