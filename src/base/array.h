#pragma once
#include "base/runtime_error.h"

#include <array>
#include <cstddef>
#include <iterator>
#include <vector>

namespace base {

/// The item at a whole-number place of anything with places; any other throws run-time error 9.
template <class Items>
constexpr auto& at(Items& items, int place) {
    if (place < 0 || static_cast<std::size_t>(place) >= std::size(items)) throwSubscript();
    return items[static_cast<std::size_t>(place)];
}
template <class Items>
constexpr auto at(const Items&& items, int place) {
    return at(items, place);
}

/// Indices 0..N-1; any other index throws run-time error 9.
template <class T, int N>
class FixedArray {
  public:
    constexpr T& operator[](int i) { return items_[checked(i)]; }
    constexpr const T& operator[](int i) const { return items_[checked(i)]; }
    static constexpr int size() { return N; }
    constexpr void fill(const T& value) { items_.fill(value); }
    constexpr auto begin() const { return items_.begin(); }
    constexpr auto end() const { return items_.end(); }

  private:
    static constexpr std::size_t checked(int i) {
        if (i < 0 || i >= N) throwSubscript();
        return static_cast<std::size_t>(i);
    }
    std::array<T, static_cast<std::size_t>(N)> items_{};
};

/// Indices 0..top in each dimension, both tops set at run time by `redim`, which clears; any other
/// index throws run-time error 9. Keeps its memory when it becomes smaller.
template <class T>
class Table {
  public:
    void redim(int topRow, int topColumn) {
        if (topRow < 0 || topColumn < 0) throwSubscript();
        rows_ = topRow + 1;
        columns_ = topColumn + 1;
        items_.assign(static_cast<std::size_t>(rows_) * static_cast<std::size_t>(columns_), T{});
    }
    T& operator()(int row, int column) { return items_[checked(row, column)]; }
    const T& operator()(int row, int column) const { return items_[checked(row, column)]; }
    void clear() { items_.assign(items_.size(), T{}); }
    int rows() const { return rows_; }
    int columns() const { return columns_; }

  private:
    std::size_t checked(int row, int column) const {
        if (row < 0 || row >= rows_ || column < 0 || column >= columns_) throwSubscript();
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
               static_cast<std::size_t>(column);
    }
    int rows_ = 0;
    int columns_ = 0;
    std::vector<T> items_;
};

}  // namespace base
