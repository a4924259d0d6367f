#pragma once
#include "core/host_port.h"

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace support {

/// A host in memory. A test sets what it answers and reads what it was told.
struct FakeHost {
    bool present = true;                 ///< false: the host object can't be made
    bool gone = false;                   ///< true: every call fails as a call
    std::optional<int> storesUntilGone;  ///< after so many stores the host is gone
    std::set<std::string> failing;       ///< keys whose call fails as a call
    std::set<std::string> refused;       ///< keys answered false, the default left alone
    std::string reason;                  ///< why a record is refused
    std::string started = "ZEPHA9.EXE";
    std::optional<std::string> midi = "-1";
    std::string language = "Deutsch";
    std::optional<core::Value> user = core::Value::Array{"u7", "Weber", "Clara", "4711"};
    std::map<std::string, core::Value> records;  ///< by "module/key"
    bool warnsOfErrors = false;                  ///< the answer to a logged fault

    std::vector<std::string> log;
    std::vector<core::Value> faults;    ///< arguments of "LOGERR"
    std::vector<std::string> requests;  ///< keys in the order of asking

    /// A link to this host, which must outlive it; nullptr when it is not present.
    std::unique_ptr<core::HostPort> connect();
    bool answer(const std::string& key, const core::Value& argument, core::Value& result);
};

}  // namespace support
