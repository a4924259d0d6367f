#pragma once
#include "sound/midi_output.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <optional>
#include <vector>

namespace synth {

/// One wish of the drill to the playing thread.
struct Command {
    enum class Kind {
        Send,     ///< play `event` at once
        Play,     ///< play `events` from their time 0, in place of what plays
        Silence,  ///< end playing, silence all notes, centre all bends
        Reset,    ///< as Silence, and set every channel back to its first instrument
    };
    Kind kind = Kind::Silence;
    sound::MidiEvent event{};
    std::vector<sound::MidiEvent> events{};
    std::uint32_t run = 0;  ///< number of the queue, told back at its end
};

/// Commands on their way from the drill's thread to the playing thread, in their order. The
/// playing thread sleeps here as long as there is nothing to do.
class Mailbox {
  public:
    using TimePoint = std::chrono::steady_clock::time_point;

    void put(Command command);
    std::optional<Command> take();
    bool empty() const;

    /// Ends all waiting for good.
    void quit();
    bool quitting() const;

    /// Sleeps until a command is there, `until` has come or quit() was called.
    void wait(std::optional<TimePoint> until = std::nullopt);
    /// Sleeps until `until` or quit(), commands or not.
    void pause(TimePoint until);

  private:
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Command> commands_;
    bool quitting_ = false;
};

}  // namespace synth
