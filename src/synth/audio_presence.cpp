#include "synth/audio_presence.h"

#include "base/environment.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>

namespace synth {

namespace fs = std::filesystem;

namespace {

/// Whether the kernel knows a card with a playback channel (named like pcmC0D0p).
bool hasPlaybackCard() {
    std::error_code none;
    const fs::directory_iterator devices("/dev/snd", none);
    return std::any_of(begin(devices), end(devices), [](const fs::directory_entry& entry) {
        const std::string name = entry.path().filename();
        return name.starts_with("pcm") && name.ends_with("p");
    });
}

}  // namespace

std::string pulseAddress(const std::string& server, const std::string& runtimeDir) {
    if (server.empty()) return runtimeDir.empty() ? "" : runtimeDir + "/pulse/native";
    std::string first = server.substr(0, server.find(' '));
    if (first.starts_with("{")) first.erase(0, first.find('}') + 1);
    if (first.starts_with("unix:")) return first.substr(5);
    return first.starts_with("/") ? first : "tcp";
}

bool listens(const std::string& socketFile) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (socketFile.empty() || socketFile.size() >= sizeof address.sun_path) return false;
    std::ranges::copy(socketFile, address.sun_path);
    const int connection = socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (connection < 0) return false;
    const bool answered =
        connect(connection, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    ::close(connection);
    return answered;
}

std::vector<std::string> presentDrivers() {
    std::vector<std::string> drivers;
    const std::string pulse =
        pulseAddress(base::environment("PULSE_SERVER"), base::environment("XDG_RUNTIME_DIR"));
    if (pulse == "tcp" || listens(pulse)) drivers.emplace_back("pulseaudio");
    if (hasPlaybackCard()) drivers.emplace_back("alsa");
    return drivers;
}

}  // namespace synth
