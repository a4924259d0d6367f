#pragma once
#include <stdexcept>
#include <string>

namespace base {

/// Numbers of the run-time errors that the host's log knows.
enum class ErrorNumber {
    InvalidCall = 5,
    Overflow = 6,
    Subscript = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    DeviceIo = 57,
    PathAccess = 75,
};

/// A fault inside the drill: what the log wants to know of it.
class RuntimeError : public std::runtime_error {
  public:
    RuntimeError(ErrorNumber number, const std::string& description, std::string source = "zepha9");
    int number() const { return static_cast<int>(number_); }
    const std::string& source() const { return source_; }

  private:
    ErrorNumber number_;
    std::string source_;
};

[[noreturn]] void throwOverflow();
[[noreturn]] void throwSubscript();
[[noreturn]] void throwDivisionByZero();
/// @param text what was given where a number was wanted.
[[noreturn]] void throwTypeMismatch(const std::string& text);

}  // namespace base
