#include "support/fake_host.h"

namespace support {

namespace {

class Link final : public core::HostPort {
  public:
    explicit Link(FakeHost& host) : host_(host) {}
    bool request(const std::string& key, const core::Value& argument,
                 core::Value& result) override {
        return host_.answer(key, argument, result);
    }

  private:
    FakeHost& host_;
};

}  // namespace

std::unique_ptr<core::HostPort> FakeHost::connect() {
    return present ? std::make_unique<Link>(*this) : nullptr;
}

bool FakeHost::answer(const std::string& key, const core::Value& argument, core::Value& result) {
    requests.push_back(key);
    if (gone || failing.contains(key)) throw core::HostGone("no answer");
    if (refused.contains(key)) {
        if (!reason.empty()) result = reason;
        return false;
    }
    const std::string record = argument.at(0).text() + "/" + argument.at(1).text();
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
        records[record] = argument.at(2);
    }
    if (key == "READ")
        result = records.contains(record) ? records.at(record) : core::Value::Array{"", "NIL"};
    if (key == "LOGERR") {
        faults.push_back(argument);
        return warnsOfErrors;
    }
    return true;
}

}  // namespace support
