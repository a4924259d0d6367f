#include "base/runtime_error.h"

namespace base {

RuntimeError::RuntimeError(ErrorNumber number, const std::string& description, std::string source)
    : std::runtime_error(description), number_(number), source_(std::move(source)) {}

void throwOverflow() { throw RuntimeError(ErrorNumber::Overflow, "overflow"); }

void throwSubscript() { throw RuntimeError(ErrorNumber::Subscript, "subscript out of range"); }

void throwDivisionByZero() { throw RuntimeError(ErrorNumber::DivisionByZero, "division by zero"); }

void throwTypeMismatch(const std::string& text) {
    throw RuntimeError(ErrorNumber::TypeMismatch, "not a number: \"" + text + "\"");
}

}  // namespace base
