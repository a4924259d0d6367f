#include "synth/synth_options.h"

#include "soundfont/fluid_error.h"
#include "soundfont/fluid_handle.h"
#include "soundfont/font_file.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <vector>

namespace synth {

namespace fs = std::filesystem;

namespace {

std::string libraryDefault() {
    const soundfont::FluidSettings settings(soundfont::made(new_fluid_settings(), "settings"));
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
        if (soundfont::isSoundfont(entry.path())) fonts.push_back(entry.path());
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
    options.tables = soundfont::TableFolders::usual();
    return options;
}

std::string findSoundfont(const std::string& wanted) {
    if (!wanted.empty()) return soundfont::isSoundfont(wanted) ? wanted : "";
    if (std::string file = libraryDefault(); soundfont::isSoundfont(file)) return file;
    for (const char* folder :
         {"/usr/share/sounds/sf2", "/usr/share/sounds/sf3", "/usr/share/soundfonts"}) {
        const auto fonts = fontsIn(folder);
        if (!fonts.empty()) return fonts.front();
    }
    return "";
}

}  // namespace synth
