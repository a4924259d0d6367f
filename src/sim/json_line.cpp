#include "sim/json_line.h"

#include "base/rounding.h"

#include <cstdio>

namespace sim {

void JsonLine::comma() {
    if (line_.back() != '{' && line_.back() != '[') line_ += ',';
}

void JsonLine::append(std::string_view value) {
    line_ += '"';
    for (const char c : value) {
        if (c == '"' || c == '\\') {
            line_ += '\\';
            line_ += c;
        } else if (static_cast<unsigned char>(c) < 0x20) {
            char code[8];
            std::snprintf(code, sizeof code, "\\u%04x", static_cast<unsigned>(c));
            line_ += code;
        } else {
            line_ += c;
        }
    }
    line_ += '"';
}

void JsonLine::key(std::string_view name) {
    comma();
    append(name);
    line_ += ':';
}

JsonLine& JsonLine::text(std::string_view name, std::string_view value) {
    key(name);
    append(value);
    return *this;
}

JsonLine& JsonLine::truth(std::string_view name, bool value) {
    key(name);
    line_ += value ? "true" : "false";
    return *this;
}

JsonLine& JsonLine::whole(std::string_view name, long value) {
    key(name);
    line_ += std::to_string(value);
    return *this;
}

JsonLine& JsonLine::decimal(std::string_view name, float value) {
    key(name);
    line_ += base::decimal(value);
    return *this;
}

JsonLine& JsonLine::null(std::string_view name) {
    key(name);
    line_ += "null";
    return *this;
}

void JsonLine::item(long value) {
    comma();
    line_ += std::to_string(value);
}

void JsonLine::quoted(std::string_view value) {
    comma();
    append(value);
}

void JsonLine::open() {
    if (line_.back() != ':') comma();
    line_ += '[';
}

void JsonLine::close() { line_ += ']'; }

std::string JsonLine::finish() {
    line_ += "}\n";
    return std::move(line_);
}

}  // namespace sim
