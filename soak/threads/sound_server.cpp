#include "threads/sound_server.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

namespace soak {

void SoundServer::come() {
    const std::lock_guard lock(mutex_);
    if (socket_ >= 0) return;
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::ranges::copy(file_, address.sun_path);
    socket_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (bind(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        listen(socket_, 100) != 0)
        throw std::system_error(errno, std::generic_category(), file_);
}

void SoundServer::leave() {
    const std::lock_guard lock(mutex_);
    if (socket_ < 0) return;
    unlink(file_.c_str());
    ::close(std::exchange(socket_, -1));
}

}  // namespace soak
