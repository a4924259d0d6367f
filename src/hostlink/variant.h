#pragma once
#include "core/value.h"

#include <QVariant>

#include <cstddef>
#include <optional>

namespace hostlink {

/// Deepest nesting of arrays that a call carries; a D-Bus message with more is dropped on the way.
inline constexpr int maximumDepth = 24;
/// Most bytes of text that one call carries; the host takes no longer one.
inline constexpr std::size_t maximumBytes = std::size_t{14} << 20;

/// A value as D-Bus carries it: truth `b`, number `x` or `d`, text `s`, array `av`, or `as`, which
/// is much faster, when it holds texts only. Nothing, which D-Bus does not know, travels as the
/// byte 0. A text ends at its first NUL; what is no UTF-8 in it becomes U+FFFD.
QVariant toVariant(const core::Value& value);

/// The value of a received variant. Besides what toVariant makes it takes the other integer types
/// and variants in variants. Nothing when it holds any other type.
std::optional<core::Value> fromVariant(const QVariant& variant);

/// Nesting of a value: 0 for what is no array, 1 for an array without arrays, and so on.
int depth(const core::Value& value);

/// Bytes of all texts in a value, plus 16 for every element.
std::size_t byteSize(const core::Value& value);

}  // namespace hostlink
