#include "base/program_folder.h"

#include <system_error>

namespace base {

namespace fs = std::filesystem;

fs::path programFolder() {
    std::error_code none;
    return fs::read_symlink("/proc/self/exe", none).parent_path();
}

fs::path suitePart(const char* name) {
    std::error_code none;
    const fs::path beside = programFolder() / name;
    return fs::exists(beside, none) ? beside : programFolder() / "../lib/melvora" / name;
}

}  // namespace base
