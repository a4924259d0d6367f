#pragma once
#include "sound/midi_output.h"
#include "threads/machine.h"

#include <memory>
#include <optional>
#include <string>
#include <thread>

namespace soak {

/// An output that watches over another one: whether each queue is told its end once, in its time
/// and on the drill's thread, and nothing sounds on after a stop.
class WatchedOutput final : public sound::MidiOutput {
  public:
    /// How early the end of a queue may be told: not at all by a port, by what the built-in
    /// synthesiser makes good when it was held up, and whenever it likes when it does not keep
    /// the clock's pace.
    struct Pace {
        std::chrono::milliseconds builtIn{1000};
        std::chrono::milliseconds port{0};
    };

    WatchedOutput(std::unique_ptr<sound::MidiOutput> real, Machine& machine, std::string who,
                  Pace pace);
    ~WatchedOutput() override;

    int deviceCount() override { return real_->deviceCount(); }
    sound::MidiDevice device(int id) override { return real_->device(id); }
    void open(int id) override;
    void close() override;
    bool isOpen() const override { return real_->isOpen(); }
    void queue(const sound::MidiEvent& event) override;
    void send(const sound::MidiEvent& event) override { real_->send(event); }
    void start() override;
    void stop() override;
    int volumeLeft() const override { return real_->volumeLeft(); }
    int volumeRight() const override { return real_->volumeRight(); }
    void setVolume(int left, int right) override { real_->setVolume(left, right); }
    sound::SoundProblem problem() const override { return real_->problem(); }

    /// When the last event of what plays is due; nothing when nothing plays.
    std::optional<Clock::time_point> due() const { return due_; }
    /// Whether a port has carried out the last stop; true of the built-in synthesiser.
    bool stopped() const { return !onPort_ || machine_.mark() == mark_; }
    /// Whether the problem that there is was told.
    bool problemTold() const { return real_->problem() == toldProblem_; }

  private:
    void ended();
    void changed();
    void cut();
    void onDrillsThread(Law law, const char* what);

    Machine& machine_;
    Laws& laws_;
    std::string who_;
    Pace pace_;
    std::thread::id thread_ = std::this_thread::get_id();
    std::unique_ptr<sound::MidiOutput> real_;
    form::Connection told_;
    std::optional<Clock::time_point> due_;
    int length_ = 0;  ///< of the queue, in milliseconds
    bool onPort_ = false;
    int mark_ = -1;
    sound::SoundProblem toldProblem_ = sound::SoundProblem::None;
};

}  // namespace soak
