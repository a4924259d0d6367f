#include "synth/synth_options.h"

#include "fontfile/font_files.h"
#include "soundfont/fluid_error.h"
#include "soundfont/fluid_handle.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <vector>

namespace synth {

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

}  // namespace

SynthOptions SynthOptions::fromEnvironment() {
    SynthOptions options;
    if (const char* driver = std::getenv("MELVORA_AUDIO_DRIVER")) options.driver = driver;
    if (const char* file = std::getenv("MELVORA_AUDIO_FILE")) options.audioFile = file;
    if (const char* font = std::getenv("MELVORA_SOUNDFONT")) options.soundfont = font;
    options.tables = soundfont::TablePlaces::usual();
    return options;
}

std::string findSoundfont(const std::string& wanted) {
    if (!wanted.empty()) return fontfile::isSoundfont(wanted) ? wanted : "";
    if (std::string file = libraryDefault(); fontfile::isSoundfont(file)) return file;
    const auto fonts = fontfile::installedFonts();
    return fonts.empty() ? "" : fonts.front().string();
}

}  // namespace synth
