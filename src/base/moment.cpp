#include "base/moment.h"

#include <cstdio>

namespace base {

namespace {

template <class... Numbers>
std::string formatted(const char* pattern, Numbers... numbers) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, pattern, numbers...);
    return buffer;
}

}  // namespace

float Moment::sinceMidnight() const {
    return static_cast<float>((hour * 60 + minute) * 60 + second) +
           static_cast<float>(millisecond) / 1000.0F;
}

std::string Moment::stamp() const {
    return formatted("%02d%02d%02d%02d%02d%02d", year % 100, month, day, hour, minute, second);
}

std::string Moment::timeOfDay() const { return formatted("%02d:%02d", hour, minute); }

std::string Moment::date() const { return formatted("%02d.%02d.%04d", day, month, year); }

std::string Moment::dateAndTime() const {
    return date() + formatted(" %02d:%02d:%02d", hour, minute, second);
}

}  // namespace base
