#include "sim/traced_run.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace sim::test {

namespace {

TEST(Trace, TheBarIsTheShareOfThePositiveWeights) {
    const TracedRun run("--set uebungsmodus=1 --set einzel_wahl=1,-1,2,-5 --learner random:0.6");
    const int n = run.lines("run")[0]["n"].toInt();
    ASSERT_EQ(n, 4);
    const auto closed = run.lines("closed");
    ASSERT_FALSE(closed.empty());
    constexpr int start = 7;  // weight of each of four scales
    for (std::size_t i = 0; i + 1 < closed.size(); ++i) {
        int sum = 0;
        for (const auto& weight : closed[i]["weights"].toArray())
            sum += std::max(0, weight.toArray()[1].toInt());
        EXPECT_EQ(closed[i]["matbox_zahl"].toInt(), sum);
        EXPECT_NEAR(closed[i]["FloodPercent"].toInt(), 100.0 * sum / (start * n * 2), 0.51);
    }
    EXPECT_TRUE(closed.back()["FloodPercent"].toInt() % 100 == 0);
}

}  // namespace

}  // namespace sim::test
