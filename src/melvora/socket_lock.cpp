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

/// The program's own folder is real, the user's and closed to others; one that is open is closed.
/// A folder that the user has named may be one that all users share, since there each may remove
/// only what is their own, and the connection itself tells users apart.
void prepareFolder(const std::string& folder, SocketLock::Place place) {
    const bool own = place == SocketLock::Place::Own;
    std::error_code failed;
    std::filesystem::create_directories(std::filesystem::path(folder).parent_path(), failed);
    if (mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST) fail(folder, std::strerror(errno));
    struct stat about {};
    if ((own ? lstat : stat)(folder.c_str(), &about) != 0) fail(folder, std::strerror(errno));
    if (!S_ISDIR(about.st_mode)) fail(folder, "is no folder");
    const bool shared = !own && about.st_uid == 0 && (about.st_mode & S_ISVTX) != 0;
    if (shared) return;
    if (about.st_uid != getuid()) fail(folder, "the folder belongs to another user");
    if (own && chmod(folder.c_str(), S_IRWXU) != 0) fail(folder, std::strerror(errno));
    if (!own && (about.st_mode & (S_IWGRP | S_IWOTH)) != 0)
        fail(folder, "other users may write in the folder; close it to them (chmod go-w)");
}

}  // namespace

SocketLock::SocketLock(const std::string& socketPath, Place place) {
    constexpr std::size_t longest = sizeof(sockaddr_un::sun_path) - sizeof ".new";
    if (socketPath.size() > longest) fail(socketPath, "the path is too long for a socket");
    prepareFolder(std::filesystem::path(socketPath).parent_path(), place);
    const std::string path = socketPath + ".lock";
    file_ = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK,
                 S_IRUSR | S_IWUSR);
    if (file_ < 0) fail(path, std::strerror(errno));
    struct stat about {};
    if (fstat(file_, &about) != 0 || about.st_uid != getuid() || !S_ISREG(about.st_mode)) {
        close(file_);
        fail(path, "the file belongs to another user, or is none");
    }
    tryAgain();
}

bool SocketLock::tryAgain() {
    if (!held_) held_ = flock(file_, LOCK_EX | LOCK_NB) == 0;
    return held_;
}

SocketLock::~SocketLock() { close(file_); }

}  // namespace melvora
