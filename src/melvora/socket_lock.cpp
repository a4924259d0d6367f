#include "melvora/socket_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <stdexcept>

namespace melvora {

namespace {

[[noreturn]] void fail(const std::string& path, const std::string& cause) {
    throw std::runtime_error(path + ": " + cause);
}

/// A folder that another user could have put there is not used; one that all users share is, since
/// the connection itself tells users apart.
void prepareFolder(const std::string& folder) {
    std::error_code failed;
    std::filesystem::create_directories(std::filesystem::path(folder).parent_path(), failed);
    if (mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST) fail(folder, std::strerror(errno));
    struct stat about {};
    if (stat(folder.c_str(), &about) != 0) fail(folder, std::strerror(errno));
    const bool shared = about.st_uid == 0 && (about.st_mode & S_ISVTX) != 0;
    if (about.st_uid != getuid() && !shared) fail(folder, "the folder belongs to another user");
}

}  // namespace

SocketLock::SocketLock(const std::string& socketPath) {
    constexpr std::size_t longest = sizeof(sockaddr_un::sun_path) - sizeof ".new";
    if (socketPath.size() > longest) fail(socketPath, "the path is too long for a socket");
    prepareFolder(std::filesystem::path(socketPath).parent_path());
    const std::string path = socketPath + ".lock";
    file_ = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    if (file_ < 0) fail(path, std::strerror(errno));
    held_ = flock(file_, LOCK_EX | LOCK_NB) == 0;
}

SocketLock::~SocketLock() { close(file_); }

}  // namespace melvora
