#include "support/desk.h"

#include <gtest/gtest.h>

namespace core {
namespace {

TEST(HostVerbinden, StandsOnlyWithTheHostThatStartedTheModule) {
    struct Row {
        const char* name;
        std::function<void(rehearsal::MemoryHost&)> set;
        std::string module;
        int status;
        std::string message;
    };
    const std::string first = "Melvora muss zuerst gestartet werden!\n";
    const Row rows[] = {
        {"no host object", [](auto& h) { h.present = false; }, "zepha9", 9, "Status 9"},
        {"a host that does not answer", [](auto& h) { h.gone = true; }, "zepha9", 9, "Status 9"},
        {"another module was started", [](auto& h) { h.started = "o.exe"; }, "zepha9", 1, first},
        {"only the beginning", [](auto& h) { h.started = "zepha9"; }, "zepha9", 1, first},
        {"the name in any case", [](auto& h) { h.started = "ZePha9.ExE"; }, "zEphA9", 0, ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        support::Desk bench;
        row.set(bench.host);
        int status = 0;
        try {
            bench.programm.host.HostVerbinden(row.module);
        } catch (const ProgrammEnde& end) {
            status = end.status;
        }
        EXPECT_EQ(status, row.status);
        EXPECT_EQ(bench.host.log.size(), row.status == 0 ? 1U : 0U);
        ASSERT_EQ(bench.dialogs.messages.size(), row.status == 0 ? 0U : 1U);
        if (row.status != 0) {
            EXPECT_TRUE(bench.dialogs.messages[0].text.starts_with(row.message));
        }
    }
}

TEST(HostLesen, FindsOnlyWhatIsARecord) {
    support::Desk bench;
    bench.programm.host.HostVerbinden();
    Value& kept = bench.host.records["zepha9/A1"];
    const Value record = Value::Array{"True", "3", "x"};
    for (const Value& value : {Value(Value::Array{"True", "NIL", "x"}),
                               Value(Value::Array{"False"}), Value("True"), record}) {
        kept = value;
        bench.programm.zustand.gelesen_a = "before";
        EXPECT_EQ(bench.programm.host.LeseAbbruch("A1"), value == record);
        EXPECT_EQ(bench.programm.zustand.gelesen_a, value == record ? record : Value("before"));
    }
    EXPECT_FALSE(bench.programm.host.LeseAbbruch("A2")) << "never stored";
}

TEST(Host, EveryRequestToleratesAHostThatIsGoneAndEveryLossIsTold) {
    support::Desk bench;
    bench.programm.host.HostVerbinden();
    Host& host = bench.programm.host;
    std::vector<std::string> lost;
    host.verlust = [&](const Host::Verlust& was) {
        lost.push_back(was.hostFort ? "gone" : "refused: " + was.grund);
    };
    bench.host.refused = {"STORE"};
    EXPECT_FALSE(host.HostSichern("E1", "x"));
    bench.host.reason = "disk full";
    EXPECT_FALSE(host.HostSichern("E1", "x"));
    bench.host.gone = true;
    EXPECT_EQ(host.HostBenutzer(), Value(Value::Array{"unbekannt"}));
    EXPECT_EQ(host.HostSprache(), "Deutsch");
    host.HostMeldung("line");
    host.HostFehler("start_timer.", std::runtime_error("broken"));
    EXPECT_FALSE(host.LeseAbbruch("A1"));
    EXPECT_FALSE(host.HostSichern("E1", "x"));
    EXPECT_FALSE(host.HostSichern("A1", "x"));
    EXPECT_EQ(lost, (std::vector<std::string>{"refused: ", "refused: disk full", "gone", "gone"}));
    EXPECT_TRUE(bench.dialogs.messages.empty());
}

}  // namespace
}  // namespace core
