#include "threads/port.h"

#include <thread>
#include <utility>

namespace soak {

namespace {

constexpr int centre = 64 * 128;

}  // namespace

Port::Port(Laws& laws, std::string who, std::atomic<int>& mark, const std::atomic<int>& slowness)
    : laws_(laws), who_(std::move(who)), mark_(mark), slowness_(slowness) {
    bend_.fill(centre);
    ++laws_.connections;
}

Port::~Port() { beQuiet("the end of its connection"); }

void Port::take(const std::vector<unsigned char>& message) {
    ++laws_.messages;
    if (const int time = slowness_; time > 0)
        std::this_thread::sleep_for(std::chrono::microseconds(time));
    const int channel = message.at(0) & 0x0f;
    switch (message.at(0) & 0xf0) {
        case 0x80:
            return note(channel, message.at(1), false);
        case 0x90:
            return note(channel, message.at(1), message.at(2) > 0);
        case 0xe0:
            bend_.at(channel) = message.at(2) * 128 + message.at(1);
            return;
        default:
            break;
    }
    if (message.at(0) != markStatus || message.at(1) != markControl) return;
    beQuiet("a stop");
    mark_ = message.at(2);
}

/// Each note that begins ends once, and before it begins again.
void Port::note(int channel, int key, bool on) {
    int& now = sounding_.at(channel).at(key);
    if (now != (on ? 0 : 1))
        laws_.broken(Law::Silence, who_,
                     "note " + std::to_string(key) + " on channel " + std::to_string(channel) +
                         (on ? " began while it sounded" : " ended while it did not sound"));
    now = on ? 1 : 0;
}

void Port::beQuiet(const std::string& when) {
    ++laws_.checks;
    for (std::size_t channel = 0; channel < sounding_.size(); ++channel) {
        for (const int key : sounding_[channel])
            if (key != 0)
                laws_.broken(Law::Silence, who_,
                             "a note on channel " + std::to_string(channel) +
                                 " of a port sounds after " + when);
        if (bend_[channel] != centre)
            laws_.broken(Law::Silence, who_,
                         "channel " + std::to_string(channel) + " of a port is bent after " + when);
    }
}

}  // namespace soak
