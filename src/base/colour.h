#pragma once
#include <cstdint>

namespace base {

struct Colour {
    std::uint8_t r = 0, g = 0, b = 0;
    friend constexpr bool operator==(Colour, Colour) = default;
};

constexpr Colour rgb(int r, int g, int b) {
    return {static_cast<std::uint8_t>(r), static_cast<std::uint8_t>(g),
            static_cast<std::uint8_t>(b)};
}

namespace colours {
constexpr Colour black = rgb(0, 0, 0);
constexpr Colour white = rgb(255, 255, 255);
constexpr Colour red = rgb(255, 0, 0);
constexpr Colour green = rgb(0, 255, 0);
constexpr Colour yellow = rgb(255, 255, 0);
constexpr Colour magenta = rgb(255, 0, 255);
constexpr Colour grey = rgb(192, 192, 192);
}  // namespace colours

}  // namespace base
