#include "sim/temp_folder.h"

#include <cstdlib>
#include <stdexcept>
#include <string>

namespace sim {

TempFolder::TempFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "zepha9-simXXXXXX").string();
    if (!mkdtemp(pattern.data()))
        throw std::runtime_error("no folder can be made as " + pattern + ": check TMPDIR");
    path_ = pattern;
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

}  // namespace sim
