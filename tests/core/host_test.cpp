#include "core/bench_programm.h"

#include <gtest/gtest.h>

namespace core {
namespace {

constexpr const char* notStarted =
    "Melvora muss zuerst gestartet werden!\nbeenden Sie Melvora nun über den Taskmanager";

/// Status with which connecting ends the program, 0 when the link stands.
int statusOf(Host& host, const std::optional<std::string>& name) {
    try {
        host.HostVerbinden(name);
    } catch (const ProgrammEnde& end) {
        return end.status;
    }
    return 0;
}

TEST(HostVerbinden, StandsOnlyWithTheHostThatStartedTheModule) {
    struct Row {
        const char* name;
        std::function<void(support::FakeHost&)> set;
        std::optional<std::string> module;
        bool stands;
        const char* message;
    };
    const Row rows[] = {
        {"no host object", [](auto& h) { h.present = false; }, "zepha9", false, "Status 9"},
        {"a host that does not answer", [](auto& h) { h.gone = true; }, "zepha9", false,
         "Status 9"},
        {"another module was started", [](auto& h) { h.started = "other.exe"; }, "zepha9", false,
         notStarted},
        {"only the beginning is the same", [](auto& h) { h.started = "zepha9"; }, "zepha9", false,
         notStarted},
        {"the name in any case", [](auto& h) { h.started = "ZePha9.ExE"; }, "zEphA9", true, ""},
        {"without a name its own", [](auto&) {}, {}, true, ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        BenchProgramm bench;
        row.set(bench.host);
        EXPECT_EQ(statusOf(bench.p.host, row.module) == 0, row.stands);
        ASSERT_EQ(bench.dialogs.messages.size(), row.stands ? 0U : 1U);
        if (row.stands) {
            EXPECT_EQ(bench.host.log, std::vector{versionText() + " zepha9"});
            continue;
        }
        EXPECT_EQ(bench.dialogs.messages[0].icon, form::Icon::Stop);
        EXPECT_EQ(bench.dialogs.messages[0].text, row.message);
        EXPECT_TRUE(bench.host.log.empty());
    }
}

TEST(HostVerbinden, TakesTheDeviceThatTheHostGives) {
    for (const auto& [given, device] : {std::pair<std::optional<std::string>, int>{"3", 3},
                                        {"-1", -1},
                                        {" 2 x", 2},
                                        {"none", 0},
                                        {{}, -9}}) {
        SCOPED_TRACE(given.value_or("no answer"));
        BenchProgramm bench;
        bench.host.midi = given;
        bench.p.host.HostVerbinden();
        EXPECT_EQ(bench.p.host.midiGeraet(), device);
    }
}

TEST(HostLesen, FindsOnlyWhatIsARecord) {
    struct Row {
        const char* name;
        std::function<void(support::FakeHost&)> set;
        bool found;
    };
    const Value record = Value::Array{"True", "3", "x"};
    const auto holding = [](const Value& value) {
        return [value](support::FakeHost& h) { h.records["zepha9/A1"] = value; };
    };
    const Row rows[] = {
        {"a record", holding(record), true},
        {"none was ever stored", [](auto&) {}, false},
        {"marked as missing, whatever else it holds", holding(Value::Array{"True", "NIL", "x"}),
         false},
        {"one element only", holding(Value::Array{"False"}), false},
        {"no array", holding("True"), false},
        {"the call fails", [](auto& h) { h.failing = {"READ"}; }, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        BenchProgramm bench;
        bench.p.host.HostVerbinden();
        row.set(bench.host);
        bench.p.zustand.gelesen_a = "before";
        bench.p.zustand.gelesen_e = "before";
        EXPECT_EQ(bench.p.host.LeseAbbruch("A1"), row.found);
        EXPECT_EQ(bench.p.zustand.gelesen_a, row.found ? record : Value("before"));
        EXPECT_EQ(bench.p.zustand.gelesen_e, Value("before"));
    }
}

TEST(Host, EveryRequestToleratesAHostThatIsGone) {
    BenchProgramm bench;
    bench.p.host.HostVerbinden();
    bench.host.gone = true;
    Host& host = bench.p.host;
    int lost = 0;
    host.verlust = [&] { ++lost; };
    EXPECT_EQ(host.HostBenutzer(), Value(Value::Array{"unbekannt"}));
    EXPECT_EQ(host.HostSprache(), "Deutsch");
    host.HostMeldung("line");
    host.HostFehler("start_timer.", std::runtime_error("broken"));
    host.HostSichern("E1", "x");
    host.HostSichern("A1", "x");
    EXPECT_EQ(lost, 1) << "told once";
    EXPECT_TRUE(bench.dialogs.messages.empty());
}

}  // namespace
}  // namespace core
