#include "form/bench_form.h"

#include <gtest/gtest.h>

namespace form {
namespace {

TEST(Property, TellsOnlyRealChangesAndAListenerMayGoWhileItIsTold) {
    Bench bench;
    int first = 0, second = 0;
    Connection secondListener;
    auto& changed = bench.form.button.changed;
    const auto firstListener = changed.connect([&](Aspect) {
        ++first;
        secondListener = Connection();
    });
    secondListener = changed.connect([&](Aspect) { ++second; });
    bench.form.button.caption = "go";
    bench.form.button.caption = "go";
    bench.form.button.enabled = true;
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 0);
}

TEST(Button, CanBePressedOnlyWhereTheUserReachesIt) {
    Bench bench;
    BenchForm& form = bench.form;
    int pressed = 0;
    form.button.onClick = {"press.", [&] { ++pressed; }};
    const std::function<void(bool)> ways[] = {
        [&](bool on) { form.button.visible = on; }, [&](bool on) { form.button.enabled = on; },
        [&](bool on) { form.frame.visible = on; }, [&](bool on) { form.frame.enabled = on; },
        [&](bool on) { form.setEnabled(on); }};
    for (const auto& set : ways) {
        pressed = 0;
        set(false);
        form.button.click();
        EXPECT_EQ(pressed, 0);
        set(true);
        form.button.click();
        EXPECT_EQ(pressed, 1);
    }
}

}  // namespace
}  // namespace form
