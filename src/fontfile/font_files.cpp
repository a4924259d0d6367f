#include "fontfile/font_files.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <string_view>
#include <system_error>

namespace fontfile {

namespace fs = std::filesystem;

bool isSoundfont(const fs::path& file) {
    std::error_code none;
    if (!fs::is_regular_file(file, none)) return false;
    std::array<char, 12> head{};
    std::ifstream(file, std::ios::binary).read(head.data(), head.size());
    const std::string_view text(head.data(), head.size());
    return text.starts_with("RIFF") && text.ends_with("sfbk");
}

Mark markOf(const fs::path& file) {
    std::error_code none;
    Mark mark;
    mark.written = fs::last_write_time(file, none);
    if (!none) mark.size = fs::file_size(file, none);
    return none ? Mark() : mark;
}

std::vector<fs::path> installedFonts() {
    std::vector<fs::path> all;
    for (const char* folder :
         {"/usr/share/sounds/sf2", "/usr/share/sounds/sf3", "/usr/share/soundfonts"}) {
        std::vector<fs::path> fonts;
        std::error_code none;
        for (const auto& entry : fs::directory_iterator(folder, none)) {
            fs::path file = fs::canonical(entry.path(), none);
            if (isSoundfont(file)) fonts.push_back(std::move(file));
        }
        std::ranges::sort(fonts);
        for (fs::path& file : fonts)
            if (std::ranges::find(all, file) == all.end()) all.push_back(std::move(file));
    }
    return all;
}

}  // namespace fontfile
