#pragma once
#include "ports/midi_ports.h"
#include "synth/audio_device.h"
#include "threads/laws.h"

#include <limits>
#include <memory>

namespace soak {

/// What one output finds on its machine: a sound card and two external ports, which come and go.
/// Cards that hang outlive their output, so the machine is shared.
class Machine : public std::enable_shared_from_this<Machine> {
  public:
    static constexpr int portCount = 2;

    Machine(Laws& laws, std::string who) : laws_(laws), who_(std::move(who)) {}

    /// The machine of this thread; `ports` looks for its ports there.
    static Machine*& here();

    /// Opens the card, or not, as `refuses` and `opening` say.
    synth::OpenDevice card();
    /// The `index`-th of the ports that are there; null when that has gone.
    ports::SendBytes connect(int index);

    /// From the drill's thread: all is stopped. The card may be filling a buffer, and fades in the
    /// next one; then nothing may be heard of it.
    void hush() { quietFrom_ = filled_ + 2; }
    /// Notes are about to sound.
    void expectSound() { quietFrom_ = never; }
    /// The output is no more and may fill no card's buffer.
    void endOutput() { over_ = true; }
    /// The value of the last mark that came to a port, -1 at first.
    int mark() const { return mark_; }

    /// One pull of the card, on the card's thread.
    void pullOnce(const synth::Pull& pull);

    std::atomic<bool> plugged{true};  ///< whether the card that is open pulls
    std::atomic<bool> refuses{false};
    std::atomic<int> opening{0}, closing{0};  ///< milliseconds that the card takes
    std::atomic<int> period{11};              ///< milliseconds between pulls
    std::atomic<int> slowness{0};             ///< microseconds that a port takes for a message
    std::array<bool, portCount> portThere{};  ///< the drill's thread's own

    Laws& laws() { return laws_; }

  private:
    static constexpr auto never = std::numeric_limits<std::int64_t>::max();

    Laws& laws_;
    std::string who_;
    std::atomic<std::int64_t> filled_{0};         ///< buffers
    std::atomic<std::int64_t> quietFrom_{never};  ///< the first buffer that must be silent
    std::atomic<bool> over_{false};
    std::atomic<int> mark_{-1};
};

}  // namespace soak
