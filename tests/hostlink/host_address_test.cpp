#include "hostlink/host_address.h"

#include <QByteArray>

#include <gtest/gtest.h>
#include <unistd.h>

namespace hostlink {
namespace {

TEST(HostAddress, FollowsTheEnvironmentInThisOrder) {
    const char* variables[] = {"MELVORA_HOST_ADDRESS", "XDG_RUNTIME_DIR", "TMPDIR"};
    for (const char* variable : variables) qunsetenv(variable);
    EXPECT_EQ(hostAddress(), "unix:path=/tmp/melvora-" + std::to_string(getuid()) + "/host");
    qputenv("XDG_RUNTIME_DIR", "/run/user/7");
    EXPECT_EQ(hostAddress(), "unix:path=/run/user/7/melvora/host");
    qputenv("MELVORA_HOST_ADDRESS", "unix:path=/a/b");
    EXPECT_EQ(hostAddress(), "unix:path=/a/b");
    qputenv("MELVORA_HOST_ADDRESS", "/a b/c");
    EXPECT_EQ(hostAddress(), "unix:path=/a%20b/c");
    for (const char* variable : variables) qunsetenv(variable);
}

TEST(HostAddress, GivesBackTheSocketItWasMadeOf) {
    for (const char* path : {"/run/user/1000/melvora/host", "/tmp/Ä ö/h,o;s=t%/host", "/a~b"}) {
        EXPECT_EQ(socketPath(addressOf(path)), path);
    }
    EXPECT_EQ(socketPath("unix:path=/a,guid=12"), "/a");
    EXPECT_FALSE(socketPath("tcp:host=localhost,port=1"));
}

}  // namespace
}  // namespace hostlink
