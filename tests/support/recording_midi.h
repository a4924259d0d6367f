#pragma once
#include "form/virtual_time.h"
#include "sound/midi_output.h"

#include <memory>
#include <set>
#include <utility>
#include <vector>

namespace support {

/// A MIDI device on virtual time. It keeps what was queued and sent, knows which notes sound, and
/// raises its end event through the loop.
class RecordingMidi final : public sound::MidiOutput {
  public:
    /// A message and the virtual time at which it sounds, milliseconds.
    struct Sent {
        std::int64_t at;
        sound::MidiEvent event;
    };

    explicit RecordingMidi(form::VirtualTime& loop, int ports = 2);
    ~RecordingMidi() override;

    int deviceCount() override { return ports_; }
    sound::MidiDevice device(int id) override;
    void open(int id) override;
    void close() override { opened = none; }
    bool isOpen() const override { return opened != none; }
    void queue(const sound::MidiEvent& event) override { queued.push_back(event); }
    void send(const sound::MidiEvent& event) override { sends.push_back({loop_.elapsed(), event}); }
    void start() override;
    void stop() override;
    int volumeLeft() const override { return volume.first; }
    int volumeRight() const override { return volume.second; }
    void setVolume(int left, int right) override;
    sound::SoundProblem problem() const override { return sound::SoundProblem::None; }

    /// Notes (channel, number) that sound now.
    std::set<std::pair<int, int>> sounding() const;
    /// The note-on events of the queue, in the order of time.
    std::vector<sound::MidiEvent> noteOns() const;
    /// Messages sent at once with that status nibble, for example 0xE0, in order.
    std::vector<sound::MidiEvent> sentWith(int status) const;

    static constexpr int none = -1000;
    int opened = none;                     ///< device, `none` while closed
    std::vector<sound::MidiEvent> queued;  ///< since the last stop
    std::vector<Sent> sends;               ///< sent at once
    std::vector<std::int64_t> starts;      ///< times of starting the queue
    int stops = 0;
    int ended = 0;  ///< end events raised
    std::pair<int, int> volume{40000, 30000};
    std::vector<std::pair<int, int>> volumes;  ///< every volume set
    std::function<void()> volumeSet;           ///< called after each of them

  private:
    struct EndTimer;
    form::VirtualTime& loop_;
    int ports_;
    std::int64_t startedAt_ = -1;  ///< -1 while nothing plays
    std::unique_ptr<EndTimer> end_;
};

}  // namespace support
