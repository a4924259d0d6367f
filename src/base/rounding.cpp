#include "base/rounding.h"

#include <charconv>
#include <cmath>

namespace base {

namespace {

int toInt(double v) {
    if (!(v >= std::numeric_limits<int>::min() && v <= std::numeric_limits<int>::max()))
        throwOverflow();
    return static_cast<int>(v);
}

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

int rounded(double v) { return toInt(std::nearbyint(v)); }

i16 roundedI16(double v) { return rounded(v); }

int floorInt(double v) { return toInt(std::floor(v)); }

int parseInt(std::string_view text) {
    const std::string_view digits = trimmed(text);
    int value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error == std::errc::result_out_of_range) throwOverflow();
    if (error != std::errc() || end != digits.data() + digits.size())
        throwTypeMismatch(std::string(text));
    return value;
}

int leadingInt(std::string_view text) {
    const std::string_view digits = trimmed(text);
    int value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return value;
}

std::string decimal(float v) {
    char text[64];
    return {text, std::to_chars(text, text + sizeof text, v, std::chars_format::fixed).ptr};
}

}  // namespace base
