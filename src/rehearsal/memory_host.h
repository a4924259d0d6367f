#pragma once
#include "core/host.h"

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace rehearsal {

/// A host in memory: it keeps records as long as it lives, answers as it was laid down, and keeps
/// what it was told. It outlives the links to it.
struct MemoryHost {
    bool present = true;                 ///< false: the host object can't be made
    bool gone = false;                   ///< true: every call fails as a call
    std::optional<int> storesUntilGone;  ///< after so many stores the host is gone
    std::set<std::string> failing;       ///< keys whose call fails as a call
    std::set<std::string> refused;       ///< keys answered false, the default left alone
    std::string reason;                  ///< why a record is refused
    std::string started = "zepha9.exe";  ///< the module that it has started
    std::optional<std::string> midi = "-1";
    std::string language = "Deutsch";
    /// Who is logged in, if anybody is.
    std::optional<core::Value> user = core::Value::Array{"u7", "Weber", "Clara", "4711"};
    std::map<std::string, core::Value> records;  ///< by "module/key"
    bool warnsOfErrors = false;                  ///< the answer to a logged fault

    std::vector<std::string> log;
    std::vector<core::Value> faults;    ///< arguments of "LOGERR"
    std::vector<std::string> requests;  ///< keys in the order of asking

    core::Host::Factory factory();
    bool answer(const std::string& key, const core::Value& argument, core::Value& result);
    /// Keeps its records, and nothing else of what it was told.
    void forget();
};

}  // namespace rehearsal
