#include "base/i16.h"

#include <gtest/gtest.h>

#include <functional>

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

TEST(I16, ReachesItsBoundsAndNotOneStepFurther) {
    const i16 top = 32767, bottom = -32768;
    struct Row {
        const char* name;
        std::function<i16()> sum;
        int error;
        int value;
    };
    const Row rows[] = {
        {"the top", [&] { return top - 1 + 1; }, 0, 32767},
        {"the bottom", [&] { return bottom + 1 - 1; }, 0, -32768},
        {"above the top", [&] { return top + 1; }, 6, 0},
        {"below the bottom", [&] { return bottom - i16(1); }, 6, 0},
        {"a product", [&] { return i16(181) * 181; }, 0, 32761},
        {"too large a product", [&] { return i16(182) * i16(182); }, 6, 0},
        {"a product beyond 32 bits", [&] { return bottom * bottom; }, 6, 0},
        {"the bottom has no opposite", [&] { return -bottom; }, 6, 0},
        {"the bottom by -1", [&] { return bottom / -1; }, 6, 0},
        {"an int that does not fit", [&] { return i16(40000); }, 6, 0},
        {"a mixed operand that does not fit", [&] { return i16(1) + 40000; }, 6, 0},
        {"a 64-bit operand", [&] { return i16(std::int64_t{1} << 40); }, 6, 0},
        {"by zero", [&] { return top / i16(0); }, 11, 0},
        {"modulo zero", [&] { return 5 % i16(0); }, 11, 0},
        {"divides toward zero", [&] { return i16(-7) / 2; }, 0, -3},
        {"the rest has the dividend's sign", [&] { return i16(-7) % 2; }, 0, -1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        i16 result;
        EXPECT_EQ(errorOf([&] { result = row.sum(); }), row.error);
        if (row.error == 0) {
            EXPECT_EQ(result, row.value);
        }
    }
}

TEST(I16, AFailedStepLeavesTheValue) {
    i16 counter = 32767;
    EXPECT_EQ(errorOf([&] { counter += 1; }), 6);
    EXPECT_EQ(errorOf([&] { ++counter; }), 6);
    EXPECT_EQ(counter, 32767);
}

}  // namespace
}  // namespace base
