#include "base/rnd.h"

#include <gtest/gtest.h>

#include <array>

namespace base {
namespace {

TEST(Rnd, StaysInItsRangeAndReachesAllOfIt) {
    Rnd rnd(3);
    for (const int k : {1, 2, 11, 30000}) {
        int lowest = k, highest = -1;
        for (int i = 0; i < 20 * k + 100; ++i) {
            const int drawn = rnd.below(k);
            lowest = std::min(lowest, drawn);
            highest = std::max(highest, drawn);
        }
        EXPECT_EQ(lowest, 0) << k;
        EXPECT_EQ(highest, k - 1) << k;
    }
}

TEST(Rnd, IsUniformFromTheFirstNumbersOfEverySeed) {
    std::array<int, 11> counts{};
    for (int seed = 0; seed < 11000; ++seed)
        ++counts[static_cast<std::size_t>(Rnd(seed).below(11))];
    for (const int count : counts) EXPECT_NEAR(count, 1000, 150);
    int up = 0;
    for (int seed = 0; seed < 1000; ++seed) up += Rnd(seed).sign() == 1 ? 1 : 0;
    EXPECT_NEAR(up, 500, 80);
}

}  // namespace
}  // namespace base
