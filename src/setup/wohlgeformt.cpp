#include "setup/wohlgeformt.h"

#include <expat.h>

#include <memory>

namespace setup {

namespace {

constexpr int tiefste = 100;

struct Gang {
    XML_Parser parser;
    int tiefe = 0;
    void ende() const { XML_StopParser(parser, XML_FALSE); }
};

Gang& gang(void* gegeben) { return *static_cast<Gang*>(gegeben); }

void beginnt(void* g, const XML_Char*, const XML_Char**) {
    if (++gang(g).tiefe > tiefste) gang(g).ende();
}

void endet(void* g, const XML_Char*) { --gang(g).tiefe; }

void eigeneEntity(void* g, const XML_Char*, int, const XML_Char*, int, const XML_Char*,
                  const XML_Char*, const XML_Char*, const XML_Char*) {
    gang(g).ende();
}

/// One that another file might declare: that is not read.
void fremdeEntity(void* g, const XML_Char*, int) { gang(g).ende(); }

}  // namespace

bool wohlgeformt(std::string_view bytes) {
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(
        XML_ParserCreate(nullptr), &XML_ParserFree);
    if (!parser) return false;
    Gang lauf{parser.get()};
    XML_SetUserData(parser.get(), &lauf);
    XML_SetElementHandler(parser.get(), beginnt, endet);
    XML_SetEntityDeclHandler(parser.get(), eigeneEntity);
    XML_SetSkippedEntityHandler(parser.get(), fremdeEntity);
    return XML_Parse(parser.get(), bytes.data(), static_cast<int>(bytes.size()), XML_TRUE) ==
           XML_STATUS_OK;
}

}  // namespace setup
