#include "threads/machine.h"

#include "threads/port.h"

#include <algorithm>
#include <cmath>
#include <thread>

namespace soak {

namespace {

constexpr int frames = 512;
constexpr float silent = 1e-4F;
/// What the buffers hold before they are filled; no sound is so loud.
constexpr float unwritten = 7;

void pauseFor(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

/// A sound card that pulls while it is plugged in.
class Card : public synth::AudioDevice {
  public:
    Card(std::shared_ptr<Machine> machine, synth::Pull pull)
        : machine_(std::move(machine)),
          thread_([this, pull = std::move(pull)](const std::stop_token& stop) {
              for (; !stop.stop_requested(); pauseFor(machine_->period))
                  if (machine_->plugged) machine_->pullOnce(pull);
          }) {
        ++machine_->laws().cards;
        ++machine_->laws().cardsOpen;
    }
    ~Card() override {
        pauseFor(machine_->closing);
        thread_.request_stop();
        thread_.join();
        --machine_->laws().cardsOpen;
    }

  private:
    std::shared_ptr<Machine> machine_;
    std::jthread thread_;
};

}  // namespace

Machine*& Machine::here() {
    thread_local Machine* machine = nullptr;
    return machine;
}

synth::OpenDevice Machine::card() {
    return [self = shared_from_this()](synth::Pull pull) -> std::unique_ptr<synth::AudioDevice> {
        pauseFor(self->opening);
        if (self->refuses) return nullptr;
        return std::make_unique<Card>(self, std::move(pull));
    };
}

ports::SendBytes Machine::connect(int index) {
    if (!portThere.at(index)) return nullptr;
    return [port = std::make_shared<Port>(laws_, who_, mark_, slowness)](
               const std::vector<unsigned char>& message) { port->take(message); };
}

void Machine::pullOnce(const synth::Pull& pull) {
    std::array<float, frames> left;
    std::array<float, frames> right;
    left.fill(unwritten);
    right.fill(unwritten);
    const bool over = over_;
    const auto quietFrom = quietFrom_.load();
    pull(left.data(), right.data(), frames);
    if (left.front() == unwritten) return;
    const auto number = filled_++;
    if (over) laws_.broken(Law::Outputs, who_, "an output that is no more filled a buffer");
    float peak = 0;
    for (const auto* side : {&left, &right})
        for (const float sample : *side) peak = std::max(peak, std::fabs(sample));
    if (!(peak <= 1)) laws_.broken(Law::Silence, who_, "a sample is " + std::to_string(peak));
    if (peak <= silent) return;
    ++laws_.heard;
    // Whoever starts again takes the wish for silence back first.
    if (number >= quietFrom && quietFrom_ == quietFrom)
        laws_.broken(Law::Silence, who_,
                     "the card sounds " + std::to_string(number - quietFrom + 1) +
                         " buffers after a stop, by " + std::to_string(peak));
}

}  // namespace soak

/// In place of the system's ports: those of the machine of the thread that asks.
namespace ports {

namespace {

constexpr auto portName = "Port ";

}  // namespace

std::vector<std::string> portNames() {
    std::vector<std::string> names;
    for (int i = 0; i < soak::Machine::portCount; ++i)
        if (soak::Machine::here()->portThere.at(i)) names.push_back(portName + std::to_string(i));
    return names;
}

SendBytes openPort(const std::string& name) {
    return soak::Machine::here()->connect(name.back() - '0');
}

}  // namespace ports
