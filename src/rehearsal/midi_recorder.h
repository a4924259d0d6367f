#pragma once
#include "form/virtual_time.h"
#include "sound/midi_output.h"

#include <set>
#include <utility>
#include <vector>

namespace rehearsal {

/// A MIDI device with two ports on virtual time. It keeps what was queued and sent, knows which
/// notes sound, and raises its end event through the loop.
class MidiRecorder final : public sound::MidiOutput {
  public:
    explicit MidiRecorder(form::VirtualTime& loop) : loop_(loop) {}

    int deviceCount() override { return 2; }
    sound::MidiDevice device(int id) override;
    void open(int id) override { opened = id < 2 ? id : mapper; }
    void close() override { opened = none; }
    bool isOpen() const override { return opened != none; }
    void queue(const sound::MidiEvent& event) override { queued.push_back(event); }
    void send(const sound::MidiEvent& event) override { sends.push_back(event); }
    void start() override;
    void stop() override;
    int volumeLeft() const override { return volume.first; }
    int volumeRight() const override { return volume.second; }
    void setVolume(int left, int right) override;
    sound::SoundProblem problem() const override { return sound::SoundProblem::None; }
    sound::Fitness fitness(int program, int lowest, int highest) const override {
        return worth ? worth(program, lowest, highest) : sound::Fitness::Unknown;
    }

    /// Notes (channel, number) that sound now.
    std::set<std::pair<int, int>> sounding() const;
    /// The note-on events of the queue, in the order of time.
    std::vector<sound::MidiEvent> noteOns() const;
    /// Messages sent at once with that status nibble, for example 0xE0, in order.
    std::vector<sound::MidiEvent> sentWith(int status) const;

    static constexpr int none = -1000;
    int opened = none;                     ///< device, `none` while closed
    std::vector<sound::MidiEvent> queued;  ///< since the last stop
    std::vector<sound::MidiEvent> sends;   ///< sent at once
    std::vector<std::int64_t> starts;      ///< times of starting the queue
    /// What instruments are worth; nothing while unknown.
    std::function<sound::Fitness(int program, int lowest, int highest)> worth;
    std::pair<int, int> volume{40000, 30000};
    std::vector<std::pair<int, int>> volumes;  ///< every volume set
    std::function<void()> volumeSet;           ///< called after each of them

  private:
    form::VirtualTime& loop_;
    std::int64_t startedAt_ = -1;  ///< -1 while nothing plays
    form::Connection end_;         ///< of the queue that plays
};

}  // namespace rehearsal
