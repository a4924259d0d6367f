#include "form/bench_form.h"

#include <gtest/gtest.h>

namespace form {
namespace {

TEST(Timer, TicksInStepsOfItsIntervalCountedFromTheLastChange) {
    Bench bench;
    std::vector<std::int64_t> times;
    int others = 0;
    bench.form.timer.onTick = {"tick.", [&] { times.push_back(bench.loop.elapsed()); }};
    bench.form.other.onTick = {"tick.", [&] {
                                   bench.form.other.stop();
                                   ++others;
                               }};
    bench.form.timer.start();
    bench.form.other.start();
    bench.loop.advance(260);
    bench.form.timer.setInterval(300);
    bench.loop.advance(640);
    EXPECT_EQ(times, (std::vector<std::int64_t>{100, 200, 560, 860}));
    EXPECT_EQ(others, 1) << "stopped by its own tick";
}

TEST(Wait, TakesItsTimeInsideAnotherAndOverMidnightUnlessItIsAborted) {
    VirtualTime late({2026, 5, 31, 23, 59, 59, 900});
    bool abort = false;
    late.wait(300, abort);
    EXPECT_EQ(late.elapsed(), 300);
    EXPECT_FLOAT_EQ(late.clock(), 0.2F);

    Bench bench;
    bench.form.timer.onTick = {"tick.", [&] {
                                   bench.form.timer.stop();
                                   bench.loop.wait(500, abort);
                                   EXPECT_EQ(bench.loop.elapsed(), 600) << "it began at 100";
                                   abort = true;
                               }};
    bench.form.timer.start();
    bench.loop.wait(5000, abort);
    EXPECT_EQ(bench.loop.elapsed(), 600) << "the outer wait ends when the inner one has";
    EXPECT_THROW(bench.loop.runUntil([] { return false; }), std::logic_error) << "not a hang";
}

}  // namespace
}  // namespace form
