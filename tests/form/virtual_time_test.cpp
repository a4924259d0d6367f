#include "form/bench_form.h"

#include <gtest/gtest.h>

namespace form {
namespace {

/// Times at which a timer ticked.
using Times = std::vector<std::int64_t>;

TEST(Timer, TicksInStepsOfItsIntervalCountedFromTheLastChange) {
    Bench bench;
    Times times;
    int others = 0;
    bench.form.timer.onTick = {"tick.", [&] { times.push_back(bench.loop.elapsed()); }};
    bench.form.other.onTick = {"tick.", [&] {
                                   bench.form.other.stop();
                                   ++others;
                               }};
    bench.form.timer.start();
    bench.form.other.start();
    bench.form.other.start();
    bench.loop.advance(260);
    bench.form.timer.setInterval(300);
    bench.loop.advance(640);
    bench.form.timer.stop();
    bench.loop.advance(1000);
    EXPECT_EQ(times, (Times{100, 200, 560, 860}));
    EXPECT_EQ(others, 1) << "stopped by its own tick";
}

TEST(Wait, LetsTimersTickAndNestedWaitsTakeTheirTime) {
    Bench bench;
    const bool never = false;
    Times inner, outer;
    bench.form.timer.onTick = {"tick.", [&] {
                                   bench.form.timer.stop();
                                   bench.loop.wait(500, never);
                                   inner.push_back(bench.loop.elapsed());
                               }};
    bench.form.timer.start();
    bench.loop.wait(200, never);
    outer.push_back(bench.loop.elapsed());
    EXPECT_EQ(inner, Times{600}) << "it began at 100";
    EXPECT_EQ(outer, Times{600}) << "the outer wait ends when the inner one has";
}

TEST(Wait, EndsAtOnceWhenItIsAbortedAndGoesOverMidnight) {
    Bench bench;
    bool abort = false;
    bench.form.timer.onTick = {"tick.", [&] { abort = true; }};
    bench.form.timer.start();
    for (int again = 0; again < 2; ++again) bench.loop.wait(5000, abort);
    EXPECT_EQ(bench.loop.elapsed(), 100);

    VirtualTime late({2026, 5, 31, 23, 59, 59, 900});
    const bool never = false;
    late.wait(300, never);
    EXPECT_EQ(late.elapsed(), 300);
    EXPECT_FLOAT_EQ(late.clock(), 0.2F);
}

TEST(RunUntil, ThrowsInsteadOfHangingWhenNothingIsLeft) {
    VirtualTime loop;
    bool posted = false;
    loop.post([&] { posted = true; });
    loop.runUntil([&] { return posted; });
    EXPECT_THROW(loop.runUntil([] { return false; }), std::logic_error);
}

}  // namespace
}  // namespace form
