#include "base/array.h"
#include "base/i16.h"
#include "base/rounding.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

namespace base {
namespace {

/// Number of the run-time error that `what` throws, 0 when it throws none.
int errorOf(const std::function<void()>& what) {
    try {
        what();
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

TEST(RunTimeErrors, ComeFromEveryStepThatLeavesItsRangeAndFromNoOther) {
    i16 top = 32767;
    const i16 bottom = -32768;
    FixedArray<int, 3> array;
    Table<int> table, unset;
    table.redim(2, 1);
    const struct {
        const char* name;
        int error;
        std::function<void()> step;
    } rows[] = {
        {"sum above the top", 6, [&] { (void)(top + 1); }},
        {"product beyond 32 bits", 6, [&] { (void)(bottom * bottom); }},
        {"the bottom has no opposite", 6, [&] { (void)-bottom; }},
        {"the bottom by -1", 6, [&] { (void)(bottom / -1); }},
        {"64-bit operand", 6, [&] { (void)i16(std::int64_t{1} << 40); }},
        {"by zero", 11, [&] { (void)(top / i16(0)); }},
        {"step", 6, [&] { ++top; }},
        {"array, behind the last", 9, [&] { (void)array[3]; }},
        {"table that was never given a size", 9, [&] { (void)unset(0, 0); }},
        {"table, last item", 0, [&] { (void)table(2, 1); }},
        {"table, not the next row's first item", 9, [&] { (void)table(0, 2); }},
        {"floor of no number", 6,
         [&] { (void)floorInt(std::numeric_limits<double>::quiet_NaN()); }},
        {"rounded up to too much", 6, [&] { (void)roundedI16(32767.5); }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(errorOf(row.step), row.error);
    }
    EXPECT_EQ(top, 32767) << "a failed step leaves the value";
    table(1, 0) = 8;
    table.redim(1, 1);
    EXPECT_EQ(table(1, 0), 0) << "a new size forgets everything";
    EXPECT_EQ(i16(-7) / 2, -3);
    EXPECT_EQ(i16(-7) % 2, -1);
}

TEST(Rounding, GoesToTheNearestAndAHalfToTheEven) {
    for (const auto& [value, near, floor] :
         {std::tuple{0.5, 0, 0}, {-2.5, -2, -3}, {2.4999999, 2, 2}, {2.5000001, 3, 2}}) {
        EXPECT_EQ(rounded(value), near);
        EXPECT_EQ(floorInt(value), floor);
    }
}

TEST(Rounding, ReadsNumbersFromText) {
    for (const auto& [text, error, whole, leading] : {std::tuple{" -7 ", 0, -7, -7},
                                                      {"", 13, 0, 0},
                                                      {"3 a", 13, 0, 3},
                                                      {"1.5", 13, 0, 1},
                                                      {"99999999999", 6, 0, 0}}) {
        SCOPED_TRACE(text);
        int value = 0;
        EXPECT_EQ(errorOf([&value, t = text] { value = parseInt(t); }), error);
        EXPECT_EQ(value, whole);
        EXPECT_EQ(leadingInt(text), leading);
    }
}

}  // namespace
}  // namespace base
