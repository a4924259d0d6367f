#include "form/bench_form.h"

#include <gtest/gtest.h>

namespace form {
namespace {

using Diary = std::vector<std::string>;

TEST(Forms, LoadOnceActivateAtEachShowAndUnloadLastFirst) {
    Bench bench;
    bench.forms.show("bench");
    bench.forms.show("bench");
    EXPECT_THROW(bench.forms.load("nobody"), std::out_of_range);
    bench.add("second");
    int ended = 0;
    const auto watch = bench.forms.empty.connect([&] { ++ended; });
    bench.forms.unloadAll();
    EXPECT_EQ(bench.diary, (Diary{"bench load", "bench active", "bench active", "second load",
                                  "second unloading", "bench unloading"}));
    EXPECT_EQ(ended, 1);
}

TEST(Forms, AFormUnloadedInItsHandlerOrWhileThatWaitsOutlivesIt) {
    for (const bool itself : {true, false}) {
        SCOPED_TRACE(itself ? "by itself" : "by another form");
        Bench bench;
        const bool never = false;
        int ticks = 0;
        BenchForm& second = bench.add("second");
        second.timer.onTick = {"tick.", [&] { bench.forms.unload("bench"); }};
        if (!itself) second.timer.start();
        bench.form.other.onTick = {"tick.", [&] { ++ticks; }};
        bench.form.other.start();
        bench.form.button.onClick = {"press.", [&] {
                                         if (itself) bench.forms.unload("bench");
                                         bench.loop.wait(1000, never);
                                         bench.diary.push_back(bench.form.name() + " went on");
                                     }};
        bench.form.button.click();
        EXPECT_EQ(bench.forms.loaded("bench"), nullptr);
        EXPECT_EQ(ticks, 0) << "its timers stopped with it";
        const auto wentOn = std::ranges::find(bench.diary, "bench went on");
        ASSERT_NE(wentOn, bench.diary.end());
        EXPECT_EQ(std::find(bench.diary.begin(), wentOn, "bench destroyed"), wentOn);
        bench.add("third");  // the next form that comes buries those that went
        bench.loop.doEvents();
        EXPECT_EQ(std::ranges::count(bench.diary, "bench destroyed"), 1);
    }
}

}  // namespace
}  // namespace form
