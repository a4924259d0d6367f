#pragma once
#include "core/host_port.h"
#include "hostlink/host_address.h"

#include <chrono>
#include <string>

namespace hostlink {

/// The host at the other end of a D-Bus peer connection.
///
/// Connects at the first request, and anew after one that failed. A request blocks without
/// running the event loop, so no handler of the caller starts inside it. Needs a QCoreApplication.
class DbusHost final : public core::HostPort {
  public:
    explicit DbusHost(std::string address = hostAddress(),
                      std::chrono::milliseconds timeout = std::chrono::seconds(5));
    ~DbusHost() override;
    DbusHost(const DbusHost&) = delete;
    DbusHost& operator=(const DbusHost&) = delete;

    /// @throws core::HostGone at once when nobody listens or the host ends during the call, and
    /// after the time-out when it does not answer; also for a value that no call can carry
    /// (maximumDepth, maximumBytes). `result` is then as it was.
    bool request(const std::string& key, const core::Value& argument, core::Value& result) override;

  private:
    void connect();

    const std::string address_;
    const std::chrono::milliseconds timeout_;
    const std::string name_;
};

}  // namespace hostlink
