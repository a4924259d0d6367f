#include "hostlink/dbus_host.h"

#include "hostlink/echo_host.h"
#include "hostlink/sample_values.h"
#include "hostlink/variant.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace hostlink {
namespace {

TEST(DbusHost, EveryValueComesBackAsItWentAndAFailedCallLeavesTheResultAlone) {
    const QTemporaryDir folder;
    const std::string address = addressOf(folder.filePath("host").toStdString());
    const auto host = std::make_unique<EchoHost>(QString::fromStdString(address));
    DbusHost link(address, std::chrono::seconds(1));
    for (const Sample& sample : sampleValues()) {
        SCOPED_TRACE(sample.name);
        core::Value result("default");
        EXPECT_TRUE(link.request("ECHO", sample.value, result));
        EXPECT_TRUE(result == sample.value);
    }
    core::Value result(core::Value::Array{"unbekannt"});
    const core::Value before = result;
    EXPECT_FALSE(link.request("DEFAULT", "", result));
    EXPECT_EQ(result, before);
    const std::pair<const char*, core::Value> failing[] = {
        {"PATH", ""},
        {"ECHO", nested(maximumDepth + 1)},
        {"ECHO", std::string(maximumBytes, 'x')},
        {"SLEEP", 1500},
    };
    for (const auto& [key, argument] : failing) {
        EXPECT_THROW(link.request(key, argument, result), core::HostGone) << key;
        EXPECT_EQ(result, before);
    }
}

}  // namespace
}  // namespace hostlink
