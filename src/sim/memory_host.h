#pragma once
#include "core/host.h"

#include <map>
#include <string>
#include <vector>

namespace sim {

/// A host in memory: it keeps the module's records as long as it lives and knows no user. It
/// outlives the links to it.
class MemoryHost {
  public:
    core::Host::Factory factory();

    /// What the module reported as faults, "procedure: description".
    const std::vector<std::string>& faults() const { return faults_; }

  private:
    class Link;
    bool answer(const std::string& key, const core::Value& argument, core::Value& result);

    std::map<std::string, core::Value> records_;
    std::vector<std::string> faults_;
};

}  // namespace sim
