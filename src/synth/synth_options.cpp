#include "synth/synth_options.h"

#include "synth/fluid_error.h"
#include "synth/fluid_handle.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <vector>

namespace synth {

namespace fs = std::filesystem;

namespace {

/// Looks at the head of a plain file: the library complains on the terminal about what is no
/// soundfont, and would wait for a pipe.
bool isSoundfont(const fs::path& file) {
    std::error_code none;
    if (!fs::is_regular_file(file, none)) return false;
    std::array<char, 12> head{};
    std::ifstream(file, std::ios::binary).read(head.data(), head.size());
    const std::string_view text(head.data(), head.size());
    return text.starts_with("RIFF") && text.ends_with("sfbk");
}

std::string libraryDefault() {
    const FluidSettings settings(made(new_fluid_settings(), "settings"));
    char* name = nullptr;
    if (fluid_settings_dupstr(settings.get(), "synth.default-soundfont", &name) == FLUID_FAILED)
        return "";
    std::string file = name ? name : "";
    fluid_free(name);
    return file;
}

/// The soundfonts of a folder in the order of their names; none when the folder is not there.
std::vector<fs::path> fontsIn(const char* folder) {
    std::vector<fs::path> fonts;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(folder, none)) {
        if (isSoundfont(entry.path())) fonts.push_back(entry.path());
    }
    std::ranges::sort(fonts);
    return fonts;
}

}  // namespace

SynthOptions SynthOptions::fromEnvironment() {
    SynthOptions options;
    if (const char* driver = std::getenv("MELVORA_AUDIO_DRIVER")) options.driver = driver;
    if (const char* file = std::getenv("MELVORA_AUDIO_FILE")) options.audioFile = file;
    if (const char* font = std::getenv("MELVORA_SOUNDFONT")) options.soundfont = font;
    return options;
}

std::string findSoundfont(const std::string& wanted) {
    if (!wanted.empty()) return isSoundfont(wanted) ? wanted : "";
    if (std::string file = libraryDefault(); isSoundfont(file)) return file;
    for (const char* folder :
         {"/usr/share/sounds/sf2", "/usr/share/sounds/sf3", "/usr/share/soundfonts"}) {
        const auto fonts = fontsIn(folder);
        if (!fonts.empty()) return fonts.front();
    }
    return "";
}

}  // namespace synth
