#include "synth/loader.h"

#include "base/program_folder.h"

#include <dlfcn.h>

#include <filesystem>
#include <stdexcept>
#include <string>

namespace synth {

namespace {

constexpr auto libraryName = "libmelvora-synth.so";
/// The two entries of the library.
constexpr auto outputName = "melvoraMakeSynthOutput";
constexpr auto measureName = "melvoraMeasureFont";
using MakeOutput = sound::MidiOutput* (*)(const Post*);
using MeasureFont = void (*)(const std::string&, const std::string&,
                             const std::function<void(int)>&, std::string&);

[[noreturn]] void fail(const std::string& what) {
    const char* reason = dlerror();
    throw std::runtime_error("No sound: " + what + (reason ? ": " : "") + (reason ? reason : "") +
                             ". Install libfluidsynth3, or Melvora again.");
}

template <class Entry>
Entry entry(const char* name) {
    const std::filesystem::path file = base::suitePart(libraryName);
    void* library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    if (library == nullptr) fail("cannot load " + file.string());
    const auto found = reinterpret_cast<Entry>(dlsym(library, name));
    if (found == nullptr) fail(file.string() + " lacks " + name);
    return found;
}

}  // namespace

std::unique_ptr<sound::MidiOutput> loadSynthOutput(const Post& post) {
    return std::unique_ptr<sound::MidiOutput>(entry<MakeOutput>(outputName)(&post));
}

std::string measureFont(const std::string& font, const std::string& folder,
                        const std::function<void(int)>& progress) {
    std::string table;
    entry<MeasureFont>(measureName)(font, folder, progress, table);
    return table;
}

}  // namespace synth
