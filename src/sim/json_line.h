#pragma once
#include <concepts>
#include <string>
#include <string_view>

namespace sim {

/// One JSON object on one line, written field by field.
class JsonLine {
  public:
    /// @param event the value of its first field, "e".
    explicit JsonLine(std::string_view event) { text("e", event); }

    JsonLine& text(std::string_view name, std::string_view value);
    JsonLine& truth(std::string_view name, bool value);
    template <std::convertible_to<long> N>
    JsonLine& number(std::string_view name, N value) {
        return whole(name, static_cast<long>(value));
    }
    /// Written as short as it reads back.
    JsonLine& decimal(std::string_view name, float value);
    JsonLine& null(std::string_view name);
    /// `count` items, item i written by `item(i)` with `item`, `quoted` or `open`/`close` below.
    template <class Write>
    JsonLine& list(std::string_view name, int count, Write write) {
        key(name);
        open();
        for (int i = 0; i < count; ++i) write(i);
        close();
        return *this;
    }

    // Items of a list.
    void item(long value);
    void quoted(std::string_view value);
    void open();
    void close();

    /// The finished line with its line feed.
    std::string finish();

  private:
    void key(std::string_view name);
    void comma();
    void append(std::string_view value);
    JsonLine& whole(std::string_view name, long value);

    std::string line_ = "{";
};

}  // namespace sim
