#pragma once
#include "threads/laws.h"

#include <array>
#include <string>
#include <vector>

namespace soak {

/// One connection to an external port, which keeps what sounds and how it is bent. It is used by
/// one thread at a time and has no lock: the sanitizer sees whether that is so.
class Port {
  public:
    /// A control change that means nothing; when it comes, all that was wished before was done.
    static constexpr int markStatus = 0xbf;
    static constexpr int markControl = 102;

    /// @param mark takes the value of each mark that came.
    Port(Laws& laws, std::string who, std::atomic<int>& mark, const std::atomic<int>& slowness);
    /// Nothing may sound on at the end of a connection.
    ~Port();
    Port(const Port&) = delete;
    Port& operator=(const Port&) = delete;

    void take(const std::vector<unsigned char>& message);

  private:
    void beQuiet(const std::string& when);
    void note(int channel, int key, bool on);

    Laws& laws_;
    std::string who_;
    std::atomic<int>& mark_;
    const std::atomic<int>& slowness_;  ///< microseconds that a message takes
    std::array<std::array<int, 128>, 16> sounding_{};
    std::array<int, 16> bend_;
};

}  // namespace soak
