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

class DbusHostTest : public testing::Test {
  protected:
    std::string address() const { return addressOf(folder_.filePath("host").toStdString()); }
    std::unique_ptr<EchoHost> echo() {
        return std::make_unique<EchoHost>(QString::fromStdString(address()));
    }
    QTemporaryDir folder_;
};

TEST_F(DbusHostTest, EveryValueComesBackAsItWentAndTheDefaultStands) {
    const auto host = echo();
    DbusHost link(address());
    for (const Sample& sample : sampleValues()) {
        SCOPED_TRACE(sample.name);
        core::Value result("default");
        EXPECT_TRUE(link.request("ECHO", sample.value, result));
        EXPECT_TRUE(result == sample.value);
    }
    core::Value result(core::Value::Array{"unbekannt"});
    EXPECT_FALSE(link.request("DEFAULT", "", result));
    EXPECT_EQ(result.at(0), core::Value("unbekannt"));
}

TEST_F(DbusHostTest, AFailedCallLeavesTheResultAlone) {
    const auto host = echo();
    DbusHost link(address(), std::chrono::milliseconds(200));
    struct Row {
        const char* key;
        core::Value argument;
    };
    const Row rows[] = {
        {"SLEEP", 400},
        {"PATH", ""},
        {"ECHO", nested(maximumDepth + 1)},
        {"ECHO", std::string(maximumBytes, 'x')},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.key);
        core::Value result("default");
        EXPECT_THROW(link.request(row.key, row.argument, result), core::HostGone);
        EXPECT_EQ(result, core::Value("default"));
    }
}

TEST_F(DbusHostTest, AHostThatEndsDuringTheCallIsNoticedBeforeTheTimeOut) {
    const int listener = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un name{AF_UNIX, {}};
    folder_.filePath("host").toStdString().copy(name.sun_path, sizeof name.sun_path - 1);
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
