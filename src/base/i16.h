#pragma once
#include "base/runtime_error.h"

#include <concepts>
#include <cstdint>
#include <limits>

namespace base {

/// 16-bit signed number whose every operation is checked: a result beyond -32768..32767 throws
/// run-time error 6, a division by zero error 11. Reads as an int.
class i16 {
  public:
    constexpr i16() = default;
    template <std::integral T>
    constexpr i16(T v) : v_(narrow(static_cast<std::int64_t>(v))) {}

    constexpr operator int() const { return v_; }

    constexpr i16& operator+=(i16 o) { return *this = *this + o; }
    constexpr i16& operator-=(i16 o) { return *this = *this - o; }
    constexpr i16& operator++() { return *this += i16(1); }
    constexpr i16 operator-() const { return {-int(v_)}; }

    friend constexpr i16 operator+(i16 a, i16 b) { return {int(a.v_) + b.v_}; }
    friend constexpr i16 operator-(i16 a, i16 b) { return {int(a.v_) - b.v_}; }
    friend constexpr i16 operator*(i16 a, i16 b) { return {int(a.v_) * b.v_}; }
    /// Truncates toward zero.
    friend constexpr i16 operator/(i16 a, i16 b) { return {int(a.v_) / nonZero(b)}; }
    friend constexpr i16 operator%(i16 a, i16 b) { return {int(a.v_) % nonZero(b)}; }

#define MELVORA_MIXED(op)                          \
    template <std::integral T>                     \
    friend constexpr i16 operator op(i16 a, T b) { \
        return a op i16(b);                        \
    }                                              \
    template <std::integral T>                     \
    friend constexpr i16 operator op(T a, i16 b) { \
        return i16(a) op b;                        \
    }
    MELVORA_MIXED(+)
    MELVORA_MIXED(-)
    MELVORA_MIXED(*)
    MELVORA_MIXED(/)
    MELVORA_MIXED(%)
#undef MELVORA_MIXED

  private:
    static constexpr std::int16_t narrow(std::int64_t v) {
        using Limits = std::numeric_limits<std::int16_t>;
        if (v < Limits::min() || v > Limits::max()) throwOverflow();
        return static_cast<std::int16_t>(v);
    }
    static constexpr int nonZero(i16 v) {
        if (v.v_ == 0) throwDivisionByZero();
        return v.v_;
    }

    std::int16_t v_ = 0;
};

/// -1, 0 or 1.
constexpr int sgn(int v) { return (v > 0) - (v < 0); }

}  // namespace base
