#pragma once
#include <cstdint>
#include <string>

namespace sim {

/// A whole number in `least`..`most`. @param what names it in the fault.
/// @throws UsageError for anything else.
std::int64_t wholeNumber(const std::string& what, const std::string& text, std::int64_t least,
                         std::int64_t most);
/// A decimal number in `least`..`most`, likewise.
double decimalNumber(const std::string& what, const std::string& text, double least, double most);

}  // namespace sim
