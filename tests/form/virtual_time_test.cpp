#include "form/bench_form.h"

#include <gtest/gtest.h>

namespace form {
namespace {

/// Times at which a timer ticked.
using Times = std::vector<std::int64_t>;

Handler noting(Bench& bench, Times& times) {
    return {"tick.", [&] { times.push_back(bench.loop.elapsed()); }};
}

TEST(Timer, TicksInOrderUntilItIsStopped) {
    Bench bench;
    Times fast, slow;
    bench.form.timer.onTick = noting(bench, fast);
    bench.form.other.onTick = noting(bench, slow);
    bench.form.timer.start();
    bench.form.other.start();
    bench.loop.advance(500);
    bench.form.timer.stop();
    bench.loop.advance(300);
    EXPECT_EQ(fast, (Times{100, 200, 300, 400, 500}));
    EXPECT_EQ(slow, (Times{250, 500, 750}));
}

TEST(Timer, StoppedByItsOwnTickItTicksOnce) {
    Bench bench;
    int ticks = 0;
    bench.form.timer.onTick = {"tick.", [&] {
                                   bench.form.timer.stop();
                                   ++ticks;
                               }};
    bench.form.timer.start();
    bench.form.timer.start();
    bench.loop.advance(1000);
    EXPECT_EQ(ticks, 1);
    EXPECT_FALSE(bench.form.timer.running());
}

TEST(Timer, ANewIntervalCountsFromNow) {
    Bench bench;
    Times times;
    bench.form.timer.onTick = noting(bench, times);
    bench.form.timer.start();
    bench.loop.advance(60);
    bench.form.timer.setInterval(300);
    bench.loop.advance(400);
    EXPECT_EQ(times, Times{360});
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

TEST(Wait, EndsAtOnceWhenItIsAborted) {
    Bench bench;
    bool abort = false;
    bench.form.timer.onTick = {"tick.", [&] { abort = true; }};
    bench.form.timer.start();
    bench.loop.wait(5000, abort);
    EXPECT_EQ(bench.loop.elapsed(), 100);
    bench.loop.wait(5000, abort);
    EXPECT_EQ(bench.loop.elapsed(), 100);
}

TEST(Wait, EndsOverMidnight) {
    VirtualTime loop({2026, 5, 31, 23, 59, 59, 900});
    const bool never = false;
    loop.wait(300, never);
    EXPECT_EQ(loop.elapsed(), 300);
    EXPECT_EQ(loop.now().timeOfDay(), "00:00");
    EXPECT_FLOAT_EQ(loop.clock(), 0.2F);
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
