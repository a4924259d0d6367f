#include "setup/wohlgeformt.h"

#include <expat.h>

#include <memory>

namespace setup {

namespace {

using Parser = std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)>;

void ende(void* parser) { XML_StopParser(static_cast<XML_Parser>(parser), XML_FALSE); }

}  // namespace

bool wohlgeformt(std::string_view bytes) {
    const Parser parser(XML_ParserCreate(nullptr), &XML_ParserFree);
    if (!parser) return false;
    XML_UseParserAsHandlerArg(parser.get());
    XML_SetEntityDeclHandler(
        parser.get(), [](void* p, const XML_Char*, int, const XML_Char*, int, const XML_Char*,
                         const XML_Char*, const XML_Char*, const XML_Char*) { ende(p); });
    // One that an outer document might declare: it is not read.
    XML_SetSkippedEntityHandler(parser.get(), [](void* p, const XML_Char*, int) { ende(p); });
    return XML_Parse(parser.get(), bytes.data(), static_cast<int>(bytes.size()), XML_TRUE) ==
           XML_STATUS_OK;
}

}  // namespace setup
