#include "synth/loader.h"

#include <dlfcn.h>

#include <filesystem>
#include <stdexcept>
#include <string>

namespace synth {

namespace fs = std::filesystem;

namespace {

constexpr auto libraryName = "libmelvora-synth.so";
constexpr auto entryName = "melvoraMakeSynthOutput";

using Entry = sound::MidiOutput* (*)(const Post*);

[[noreturn]] void fail(const std::string& what) {
    const char* reason = dlerror();
    throw std::runtime_error("No sound: " + what + (reason ? ": " : "") + (reason ? reason : "") +
                             ". Install libfluidsynth3, or Melvora again.");
}

fs::path libraryFile() {
    const fs::path here = fs::read_symlink("/proc/self/exe").parent_path();
    const fs::path beside = here / libraryName;
    return fs::exists(beside) ? beside : here / "../lib/melvora" / libraryName;
}

}  // namespace

std::unique_ptr<sound::MidiOutput> loadSynthOutput(const Post& post) {
    const fs::path file = libraryFile();
    void* library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    if (library == nullptr) fail("cannot load " + file.string());
    const auto make = reinterpret_cast<Entry>(dlsym(library, entryName));
    if (make == nullptr) fail(file.string() + " lacks " + entryName);
    return std::unique_ptr<sound::MidiOutput>(make(&post));
}

}  // namespace synth
