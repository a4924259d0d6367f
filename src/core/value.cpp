#include "core/value.h"

#include <charconv>

namespace core {

namespace {

const Value emptyValue;
const Value::Array noItems;

template <class Number>
std::string decimal(Number number) {
    char buffer[32];
    const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, number);
    return error == std::errc() ? std::string(buffer, end) : std::string();
}

struct AsText {
    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(bool truth) const { return truth ? "True" : "False"; }
    std::string operator()(std::int64_t number) const { return decimal(number); }
    std::string operator()(double number) const { return decimal(number); }
    std::string operator()(const std::string& text) const { return text; }
    std::string operator()(const Value::Array&) const { return {}; }
};

}  // namespace

const Value::Array& Value::items() const {
    const auto* items = std::get_if<Array>(&v_);
    return items ? *items : noItems;
}

const Value& Value::at(std::size_t i) const {
    const Array& all = items();
    return i < all.size() ? all[i] : emptyValue;
}

std::string Value::text() const { return std::visit(AsText{}, v_); }

}  // namespace core
