#include "base/rounding.h"

#include <gtest/gtest.h>

#include <limits>

namespace base {
namespace {

template <class F>
int errorOf(F what) {
    try {
        (void)what();
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

TEST(Rounding, GoesToTheNearestAndAHalfToTheEven) {
    for (const auto& [value, near, floor] : {std::tuple{0.5, 0, 0},
                                             {1.5, 2, 1},
                                             {2.5, 2, 2},
                                             {-0.5, 0, -1},
                                             {-1.5, -2, -2},
                                             {-2.5, -2, -3},
                                             {2.4999999, 2, 2},
                                             {2.5000001, 3, 2},
                                             {-3.2, -3, -4},
                                             {7.0, 7, 7}}) {
        SCOPED_TRACE(value);
        EXPECT_EQ(rounded(value), near);
        EXPECT_EQ(floorInt(value), floor);
    }
}

TEST(Rounding, RefusesWhatDoesNotFit) {
    EXPECT_EQ(errorOf([] { return rounded(3e9); }), 6);
    EXPECT_EQ(errorOf([] { return floorInt(std::numeric_limits<double>::quiet_NaN()); }), 6);
    EXPECT_EQ(errorOf([] { return roundedI16(32767.5); }), 6);
    EXPECT_EQ(roundedI16(32767.4), 32767);
}

TEST(Rounding, ReadsNumbersFromText) {
    struct Row {
        const char* text;
        int error;
        int value;
        int leading;
    };
    for (const Row& row : {Row{"12", 0, 12, 12}, Row{" -7 ", 0, -7, -7}, Row{"", 13, 0, 0},
                           Row{"  ", 13, 0, 0}, Row{"3 a", 13, 0, 3}, Row{"a3", 13, 0, 0},
                           Row{"1.5", 13, 0, 1}, Row{"99999999999", 6, 0, 0}}) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(errorOf([&] { return parseInt(row.text); }), row.error);
        if (row.error == 0) {
            EXPECT_EQ(parseInt(row.text), row.value);
        }
        EXPECT_EQ(leadingInt(row.text), row.leading);
    }
}

}  // namespace
}  // namespace base
