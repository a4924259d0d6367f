#pragma once
#include "core/value.h"

#include <QString>
#include <QVariant>

#include <string>
#include <string_view>

namespace soak {

/// Reads what a caller may send from lines, so that an input is a text: the letter of a D-Bus type
/// and its content. Any text says something.
///
///     s TEXT, with %0A for a line feed       b 1    y n q i u x t 7    d 0.5
///     o g Y P I                              path, signature, bytes, structure, numbers: no values
///     v                                      the next value, once more in a variant
///     [ ... ]    S ... ]    { ... ]          list, texts, and map of a text and a value in turn
///     A ... ]                                list of lists
class Lines {
  public:
    explicit Lines(std::string_view text) : text_(text) {}

    std::string_view line();
    QString text();
    /// @param room levels of containers and variants that may still come; beyond that, texts.
    QVariant value(int room = mostLevels);

  private:
    /// Two for each of the arrays in arrays that a call carries.
    static constexpr int mostLevels = 49;
    bool closed();
    QVariantList list(int room);

    std::string_view text_;
};

/// The lines that say this value.
std::string described(const core::Value& value);

/// As ==, but that what is no number is the same as itself.
bool same(const core::Value& a, const core::Value& b);

}  // namespace soak
