#include "rehearsal/memory_host.h"

namespace rehearsal {

namespace {

class Link final : public core::HostPort {
  public:
    explicit Link(MemoryHost& host) : host_(host) {}
    bool request(const std::string& key, const core::Value& argument,
                 core::Value& result) override {
        return host_.answer(key, argument, result);
    }

  private:
    MemoryHost& host_;
};

}  // namespace

core::Host::Factory MemoryHost::factory() {
    return [this]() -> std::unique_ptr<core::HostPort> {
        if (!present) return nullptr;
        return std::make_unique<Link>(*this);
    };
}

bool MemoryHost::answer(const std::string& key, const core::Value& argument, core::Value& result) {
    requests.push_back(key);
    if (gone || failing.contains(key)) throw core::HostGone("no answer");
    if (refused.contains(key)) {
        if (!reason.empty()) result = reason;
        return false;
    }
    const auto record = [&] { return argument.at(0).text() + "/" + argument.at(1).text(); };
    if (key == "APP") result = core::Value::Array{"", started};
    if (key == "MIDI" && midi) result = *midi;
    if (key == "MIDI") return midi.has_value();
    if (key == "LANG") result = language;
    if (key == "LOGIN" && user) result = *user;
    if (key == "LOGMESS") log.push_back(argument.text());
    if (key == "STORE") {
        if (storesUntilGone && (*storesUntilGone)-- == 0) {
            gone = true;
            throw core::HostGone("gone");
        }
        records[record()] = argument.at(2);
    }
    if (key == "READ") {
        const auto kept = records.find(record());
        result = kept == records.end() ? core::Value(core::Value::Array{"", "NIL"}) : kept->second;
    }
    if (key == "LOGERR") {
        faults.push_back(argument);
        return warnsOfErrors;
    }
    return true;
}

void MemoryHost::forget() {
    log.clear();
    faults.clear();
    requests.clear();
}

}  // namespace rehearsal
