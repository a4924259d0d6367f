#include "synth/audio_presence.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>

TEST(AudioPresence, PulseAddressIsFoundAsTheServersOwnClientsFindIt) {
    const struct {
        const char* name;
        const char* server;
        const char* runtimeDir;
        const char* address;
    } rows[] = {
        {"default", "", "/run/user/1", "/run/user/1/pulse/native"},
        {"socket", "unix:/tmp/p", "/run/user/1", "/tmp/p"},
        {"bare file", "/tmp/p", "", "/tmp/p"},
        {"tied to a machine, first of two", "{abc}unix:/tmp/p tcp:far", "", "/tmp/p"},
        {"host name", "far", "", "tcp"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(synth::pulseAddress(row.server, row.runtimeDir), row.address);
    }
}

TEST(AudioPresence, SocketCountsOnlyWhileSomeoneListens) {
    const std::string file = testing::TempDir() + "audio_presence_test.socket";
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, file.c_str(), sizeof address.sun_path - 1);
    unlink(file.c_str());
    EXPECT_FALSE(synth::listens(file));
    const int server = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(bind(server, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(listen(server, 1), 0);
    EXPECT_TRUE(synth::listens(file));
    close(server);
    EXPECT_FALSE(synth::listens(file)) << "left behind by a dead server";
    unlink(file.c_str());
    EXPECT_FALSE(synth::listens(std::string(200, 'x')));
}
