#include "core/formular.h"

#include "support/desk.h"

#include <gtest/gtest.h>

namespace core {
namespace {

struct Faulty final : Formular {
    explicit Faulty(Programm& programm) : Formular(programm, "faulty") {
        timer.onTick = {"start_timer.", [this] {
                            timer.stop();
                            ++ticks;
                            base::throwOverflow();
                        }};
    }
    void closeBox() override {}
    void nachFehler(const std::string& prozedur) override { after.push_back(prozedur); }
    form::Timer timer{*this, {"start"}, 10};
    int ticks = 0;
    std::vector<std::string> after;
};

TEST(CommonErrorPath, LogsWarnsAndGoesOnAlsoWithoutAHost) {
    for (const std::string host : {"silent", "warning", "gone"}) {
        SCOPED_TRACE(host);
        support::Desk bench;
        bench.programm.host.HostVerbinden();
        bench.programm.worte.SprachenLaden();
        bench.programm.worte.SpracheSetzen("Deutsch");
        bench.host.warnsOfErrors = host == "warning";
        bench.host.gone = host == "gone";
        Faulty form(bench.programm);
        form.timer.start();
        bench.loop.advance(1000);
        EXPECT_EQ(form.ticks, 1) << "the timer stays off";
        if (host != "gone") {
            ASSERT_EQ(bench.host.faults.size(), 1U);
            EXPECT_EQ(bench.host.faults[0],
                      Value(Value::Array{"zepha9.faultystart_timer.", 6, "overflow", "zepha9"}));
        }
        ASSERT_EQ(bench.dialogs.messages.size(), host == "warning" ? 2U : 1U);
        if (host == "warning") {
            EXPECT_EQ(bench.dialogs.messages[0].title, "Warnung") << "the host's warning first";
        }
        EXPECT_EQ(bench.dialogs.messages.back().text, "W720\nW721\nW722\nW723");
        EXPECT_EQ(form.after, std::vector<std::string>{"start_timer."});
    }
}

TEST(FrmMessage, ShowsALongTextUntilItIsPutAway) {
    support::Desk bench;
    bench.programm.Melden("title", "first");
    bench.programm.Melden("title", "second");
    form::Form* message = bench.programm.forms.loaded("frmMessage");
    ASSERT_NE(message, nullptr);
    EXPECT_EQ(static_cast<form::TextBox*>(message->find("txtPrompt"))->text(), "second");
    message->key({form::Key::Kind::Escape});
    EXPECT_EQ(bench.programm.forms.loaded("frmMessage"), nullptr);
}

}  // namespace
}  // namespace core
