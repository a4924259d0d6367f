#include "soundfont/font_file.h"

#include <array>
#include <fstream>
#include <string_view>
#include <system_error>

namespace soundfont {

namespace fs = std::filesystem;

bool isSoundfont(const fs::path& file) {
    std::error_code none;
    if (!fs::is_regular_file(file, none)) return false;
    std::array<char, 12> head{};
    std::ifstream(file, std::ios::binary).read(head.data(), head.size());
    const std::string_view text(head.data(), head.size());
    return text.starts_with("RIFF") && text.ends_with("sfbk");
}

}  // namespace soundfont
