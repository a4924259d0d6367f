#include "hostlink/dbus_host.h"

#include "hostlink/echo_host.h"
#include "hostlink/sample_values.h"
#include "hostlink/variant.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <thread>

namespace hostlink {
namespace {

struct DbusHostTest : testing::Test {
    std::string address() const { return addressOf(folder.filePath("host").toStdString()); }
    QTemporaryDir folder;
};

TEST_F(DbusHostTest, EveryValueComesBackAsItWentAndAFailedCallLeavesTheResultAlone) {
    const EchoHost host(QString::fromStdString(address()));
    DbusHost link(address(), std::chrono::seconds(1));
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

TEST_F(DbusHostTest, AHostThatEndsDuringTheCallIsNoticedBeforeTheTimeOut) {
    const int listener = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un name{AF_UNIX, {}};
    folder.filePath("host").toStdString().copy(name.sun_path, sizeof name.sun_path - 1);
    ASSERT_EQ(bind(listener, reinterpret_cast<sockaddr*>(&name), sizeof name), 0);
    ASSERT_EQ(listen(listener, 1), 0);
    std::thread host([&] {
        const int caller = accept(listener, nullptr, nullptr);
        char greeting = 0;
        EXPECT_GE(recv(caller, &greeting, 1, 0), 0);
        close(caller);
    });
    DbusHost link(address(), std::chrono::minutes(10));
    core::Value result;
    EXPECT_THROW(link.request("ECHO", "", result), core::HostGone);
    host.join();
    close(listener);
}

}  // namespace
}  // namespace hostlink
