#include "settingsfile/settings_file.h"

#include "base/whole_file.h"

#include <expat.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <system_error>

namespace settingsfile {

namespace {

constexpr int deepest = 100;

struct Walk {
    XML_Parser parser;
    const OnElement& onElement;
    int depth = 0;
    void stop() const { XML_StopParser(parser, XML_FALSE); }
};

Walk& walk(void* given) { return *static_cast<Walk*>(given); }

void begins(void* w, const XML_Char* name, const XML_Char**) {
    if (++walk(w).depth > deepest) return walk(w).stop();
    const std::string_view whole = name;
    if (walk(w).onElement) walk(w).onElement(whole.substr(whole.find(':') + 1));
}

void ends(void* w, const XML_Char*) { --walk(w).depth; }

void ownEntity(void* w, const XML_Char*, int, const XML_Char*, int, const XML_Char*,
               const XML_Char*, const XML_Char*, const XML_Char*) {
    walk(w).stop();
}

/// One that another file might declare: that is not read.
void foreignEntity(void* w, const XML_Char*, int) { walk(w).stop(); }

}  // namespace

std::optional<int> faultyLine(std::string_view bytes, const OnElement& onElement) {
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(
        XML_ParserCreate(nullptr), &XML_ParserFree);
    if (!parser) return 1;
    Walk way{parser.get(), onElement};
    XML_SetUserData(parser.get(), &way);
    XML_SetElementHandler(parser.get(), begins, ends);
    XML_SetEntityDeclHandler(parser.get(), ownEntity);
    XML_SetSkippedEntityHandler(parser.get(), foreignEntity);
    if (XML_Parse(parser.get(), bytes.data(), static_cast<int>(bytes.size()), XML_TRUE) ==
        XML_STATUS_OK)
        return {};
    return static_cast<int>(XML_GetCurrentLineNumber(parser.get()));
}

Finding look(const std::string& path) {
    std::error_code error;
    const auto about = std::filesystem::status(path, error);
    if (about.type() == std::filesystem::file_type::not_found) return {Trouble::Missing};
    if (error) return {Trouble::Unreadable, 0, error.message()};
    if (about.type() != std::filesystem::file_type::regular) return {Trouble::NoPlainFile};
    std::string bytes;
    try {
        bytes = base::readWhole(path, largest);
    } catch (const std::system_error& fault) {
        if (fault.code() == std::errc::file_too_large) return {Trouble::TooBig};
        return {Trouble::Unreadable, 0, fault.code().message()};
    }
    bool hasSettings = false;
    const auto line = faultyLine(bytes, [&](std::string_view name) {
        constexpr std::string_view telling[] = {"control", "type", "modul"};
        hasSettings |= std::ranges::find(telling, name) != std::end(telling);
    });
    if (line) return {Trouble::NotWellFormed, *line};
    return {hasSettings ? Trouble::None : Trouble::NoSettings};
}

}  // namespace settingsfile
