#pragma once
#include <string>

namespace base {

/// A moment of local time. Month 1..12, day 1..31.
struct Moment {
    int year = 2000, month = 1, day = 1;
    int hour = 0, minute = 0, second = 0, millisecond = 0;

    /// Seconds since midnight; as a float it is exact to 8 ms at the day's end.
    float sinceMidnight() const;
    /// "yymmddhhMMss".
    std::string stamp() const;
    /// "hh:MM".
    std::string timeOfDay() const;
    /// "dd.mm.yyyy".
    std::string date() const;
    /// "dd.mm.yyyy hh:MM:ss".
    std::string dateAndTime() const;
};

}  // namespace base
