#pragma once
#include "base/i16.h"

#include <string>
#include <string_view>

namespace base {

/// To the nearest integer, a half to the even one. @throws error 6 beyond 32 bits.
int rounded(double v);
/// `rounded` into 16 bits. @throws error 6.
i16 roundedI16(double v);
/// The greatest integer not above v.
int floorInt(double v);
/// A whole decimal number, blanks around it allowed. @throws error 13 for anything else, 6 beyond
/// 32 bits.
int parseInt(std::string_view text);
/// The number that a text begins with, 0 when it begins with none; never throws.
int leadingInt(std::string_view text);
/// The shortest plain decimal that reads back as the same float; never with an exponent.
std::string decimal(float v);

}  // namespace base
