#include "sim/number.h"

#include "sim/usage_error.h"

#include <charconv>

namespace sim {

namespace {

template <class T>
T number(const std::string& what, const std::string& text, T least, T most) {
    T value{};
    const char* const last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, value);
    if (text.empty() || error == std::errc::invalid_argument || end != last)
        throw UsageError(what + ": \"" + text + "\" is not a number");
    if (error != std::errc() || !(value >= least && value <= most)) {
        const auto plain = [](T v) { return std::to_string(static_cast<std::int64_t>(v)); };
        throw UsageError(what + ": " + text + " is not in " + plain(least) + ".." + plain(most));
    }
    return value;
}

}  // namespace

std::int64_t wholeNumber(const std::string& what, const std::string& text, std::int64_t least,
                         std::int64_t most) {
    return number(what, text, least, most);
}

double decimalNumber(const std::string& what, const std::string& text, double least, double most) {
    return number(what, text, least, most);
}

}  // namespace sim
