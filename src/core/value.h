#pragma once
#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace core {

/// What travels between module and host: nothing, a truth, a number, a text or an array of values.
/// Text is UTF-8.
class Value {
  public:
    using Array = std::vector<Value>;

    Value() = default;
    Value(bool truth) : v_(truth) {}
    Value(int number) : v_(static_cast<std::int64_t>(number)) {}
    Value(std::int64_t number) : v_(number) {}
    Value(double number) : v_(number) {}
    Value(std::string text) : v_(std::move(text)) {}
    Value(const char* text) : v_(std::string(text)) {}
    Value(Array items) : v_(std::move(items)) {}

    bool isEmpty() const { return std::holds_alternative<std::monostate>(v_); }
    bool isText() const { return std::holds_alternative<std::string>(v_); }
    bool isArray() const { return std::holds_alternative<Array>(v_); }
    /// The items of an array; an empty list for anything else.
    const Array& items() const;
    /// Element `i` of an array; the empty value when it is no array or has no such element.
    const Value& at(std::size_t i) const;
    /// The value as text: numbers in plain decimal, truths as "True"/"False", "" for nothing and
    /// arrays.
    std::string text() const;

    template <class Visitor>
    decltype(auto) visit(Visitor&& visitor) const {
        return std::visit(std::forward<Visitor>(visitor), v_);
    }
    friend bool operator==(const Value&, const Value&) = default;

  private:
    std::variant<std::monostate, bool, std::int64_t, double, std::string, Array> v_;
};

}  // namespace core
