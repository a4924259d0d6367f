#pragma once
#include <mutex>
#include <string>

namespace soak {

/// A sound server that takes connections and says nothing, or is not there. From any thread.
class SoundServer {
  public:
    /// @param file the socket at which it listens.
    explicit SoundServer(std::string file) : file_(std::move(file)) {}
    ~SoundServer() { leave(); }
    SoundServer(const SoundServer&) = delete;
    SoundServer& operator=(const SoundServer&) = delete;

    void come();
    /// Whoever waits for an answer is told that it is gone.
    void leave();

  private:
    std::string file_;
    std::mutex mutex_;
    int socket_ = -1;
};

}  // namespace soak
