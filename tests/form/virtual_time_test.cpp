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

/// Two timers that tick together, one of which begins anew in its own tick and stops in its fifth.
TEST(VirtualTime, CallsDueTogetherTakeTurnsBehindWhatIsPosted) {
    Bench bench;
    std::string order;
    Timer first(bench.form, {"first"}, 10), second(bench.form, {"second"}, 10);
    first.onTick = {"", [&] {
                        order += 'a';
                        bench.loop.post([&] { order += '.'; });
                    }};
    second.onTick = {"", [&] {
                         order += 'b';
                         second.setInterval(10);
                         if (order.size() > 12) second.stop();
                     }};
    first.start();
    second.start();
    int made = 0;
    Connection gone = bench.loop.after(5, [&] { ++made; });
    const Connection kept = bench.loop.after(0, [&] {
        ++made;
        gone = {};
    });
    bench.loop.advance(0);
    EXPECT_EQ(made, 0) << "in a millisecond at the earliest";
    bench.loop.advance(61);
    EXPECT_EQ(order, "a.ba.ba.ba.ba.ba.");
    EXPECT_EQ(made, 1);
}

}  // namespace
}  // namespace form
