#pragma once
#include <string>

namespace melvora {

/// The right to serve a socket. The system gives it back when the process ends, however it ends, so
/// a socket file that is left over blocks nobody.
class SocketLock {
  public:
    /// Whose the socket's folder is: the program's own, or one that the user has named.
    enum class Place { Own, Named };

    /// Makes the socket's folder, open to this user only, when it is missing.
    /// @throws std::runtime_error naming the path when the folder cannot be made, or when others
    /// could put something in the socket's place.
    SocketLock(const std::string& socketPath, Place place);
    ~SocketLock();
    SocketLock(const SocketLock&) = delete;
    SocketLock& operator=(const SocketLock&) = delete;

    /// False when another process has the right.
    bool held() const { return held_; }
    /// Asks once more. @return whether the right is this process's now.
    bool tryAgain();

  private:
    int file_ = -1;
    bool held_ = false;
};

}  // namespace melvora
