#include "sim/memory_host.h"

namespace sim {

class MemoryHost::Link final : public core::HostPort {
  public:
    explicit Link(MemoryHost& host) : host_(host) {}
    bool request(const std::string& key, const core::Value& argument,
                 core::Value& result) override {
        return host_.answer(key, argument, result);
    }

  private:
    MemoryHost& host_;
};

core::Host::Factory MemoryHost::factory() {
    return [this] { return std::make_unique<Link>(*this); };
}

bool MemoryHost::answer(const std::string& key, const core::Value& argument, core::Value& result) {
    using core::Value;
    if (key == "APP") result = Value::Array{"", std::string(core::Host::programm) + ".exe"};
    if (key == "MIDI") result = "-1";
    if (key == "STORE") records_[argument.at(1).text()] = argument.at(2);
    if (key == "READ") {
        const auto record = records_.find(argument.at(1).text());
        result = record == records_.end() ? Value(Value::Array{"", "NIL"}) : record->second;
    }
    if (key == "LOGERR") {
        faults_.push_back(argument.at(0).text() + ": " + argument.at(2).text());
        return false;
    }
    return true;
}

}  // namespace sim
