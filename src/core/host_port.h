#pragma once
#include "core/value.h"

#include <stdexcept>
#include <string>

namespace core {

/// The call itself failed: no host, host gone, no answer in time.
class HostGone : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The suite's host as the module sees it: one operation.
class HostPort {
  public:
    virtual ~HostPort() = default;
    /// @param result in: the value that stands if the host leaves it alone; out: the host's value.
    /// @return the host's answer.
    /// @throws HostGone when the call could not be made or was not answered.
    virtual bool request(const std::string& key, const Value& argument, Value& result) = 0;
};

}  // namespace core
