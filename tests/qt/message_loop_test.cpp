#include "qt/message_loop.h"

#include "form/controls.h"
#include "form/forms.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <thread>

namespace {

struct Ticking final : form::Form {
    explicit Ticking(form::Forms& forms) : Form(forms, "ticking") {}
    void closeBox() override {}
    void failed(const std::string&, const std::exception&) override { throw; }
    form::Timer timer{*this, {"timer"}, 5};
};

TEST(QtMessageLoop, TicksUntilATickStopsItsOwnTimer) {
    qt::QtMessageLoop loop;
    form::Forms forms(loop);
    Ticking form(forms);
    int ticks = 0;
    form.timer.onTick = {"", [&] {
                             if (++ticks == 3) form.timer.stop();
                         }};
    form.timer.start();
    const bool never = false;
    loop.wait(120, never);
    EXPECT_EQ(ticks, 3);
}

TEST(QtMessageLoop, AWaitLastsAtLeastItsTimeAndEndsAtOnceWhenAborted) {
    qt::QtMessageLoop loop;
    bool abort = false;
    QElapsedTimer elapsed;
    elapsed.start();
    loop.wait(40, abort);
    EXPECT_GE(elapsed.elapsed(), 40);
    loop.post([&] { abort = true; });
    elapsed.restart();
    loop.wait(60000, abort);
    EXPECT_LT(elapsed.elapsed(), 30000);
}

TEST(QtMessageLoop, CallsFromAnotherThreadAreMadeOnThisOne) {
    qt::QtMessageLoop loop;
    std::thread::id made;
    std::thread other([&] { loop.post([&] { made = std::this_thread::get_id(); }); });
    other.join();
    loop.runUntil([&] { return made != std::thread::id(); });
    EXPECT_EQ(made, std::this_thread::get_id());
}

}  // namespace
