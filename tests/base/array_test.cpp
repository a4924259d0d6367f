#include "base/array.h"

#include <gtest/gtest.h>

namespace base {
namespace {

/// Whether `what` throws run-time error 9.
template <class F>
bool outside(F what) {
    try {
        (void)what();
    } catch (const RuntimeError& error) {
        return error.number() == 9;
    }
    return false;
}

TEST(FixedArray, HasExactlyItsIndices) {
    FixedArray<int, 3> array;
    array[2] = 7;
    EXPECT_EQ(array[2], 7);
    EXPECT_TRUE(outside([&] { return array[3]; }));
    EXPECT_TRUE(outside([&] { return array[-1]; }));
}

TEST(Table, HasExactlyItsIndicesInBothDimensions) {
    Table<int> table;
    EXPECT_TRUE(outside([&] { return table(0, 0); })) << "nothing before the first redim";
    table.redim(2, 1);
    table(2, 1) = 5;
    table(1, 1) = 4;
    EXPECT_EQ(table(2, 1), 5);
    EXPECT_TRUE(outside([&] { return table(3, 0); }));
    EXPECT_TRUE(outside([&] { return table(0, 2); })) << "not the first item of the next row";
    EXPECT_TRUE(outside([&] { return table(-1, 1); }));
    EXPECT_TRUE(outside([&] {
        table.redim(-1, 0);
        return 0;
    }));
}

TEST(Table, RedimForgetsEverything) {
    Table<int> table;
    table.redim(3, 1);
    table(3, 1) = 9;
    table(1, 0) = 8;
    table.redim(1, 1);
    EXPECT_EQ(table(1, 0), 0);
    EXPECT_TRUE(outside([&] { return table(3, 1); }));
}

}  // namespace
}  // namespace base
