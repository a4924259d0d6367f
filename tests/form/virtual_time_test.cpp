#include "form/bench_form.h"

#include <gtest/gtest.h>

namespace form {
namespace {

TEST(VirtualTime, TicksInStepsAndWaitsInsideEachOtherAndOverMidnight) {
    Bench bench;
    std::vector<std::int64_t> times;
    bench.form.timer.onTick = {"tick.", [&] { times.push_back(bench.loop.elapsed()); }};
    bench.form.timer.start();
    bench.loop.advance(260);
    bench.form.timer.setInterval(300);
    bench.loop.advance(340);
    EXPECT_EQ(times, (std::vector<std::int64_t>{100, 200, 560}));

    bool abort = false;
    bench.form.timer.onTick = {"tick.", [&] {
                                   bench.form.timer.stop();
                                   bench.loop.wait(500, abort);
                                   abort = true;
                               }};
    bench.loop.wait(5000, abort);
    EXPECT_EQ(bench.loop.elapsed(), 860 + 500) << "aborted when the inner one has ended";
    EXPECT_THROW(bench.loop.runUntil([] { return false; }), std::logic_error) << "not a hang";

    VirtualTime late({2026, 5, 31, 23, 59, 59, 900});
    late.advance(300);
    EXPECT_FLOAT_EQ(late.clock(), 86400.2F);
}

}  // namespace
}  // namespace form
