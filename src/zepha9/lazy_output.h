#pragma once
#include "sound/midi_output.h"
#include "synth/post.h"

#include <memory>

namespace zepha9 {

/// The MIDI output, loaded when it is first asked for: the start form and the theory branch need no
/// sound and should not wait for it. Without the sound library it is silent, and looks for it again
/// when it is opened.
class LazyOutput final : public sound::MidiOutput {
  public:
    /// @param missing told once, with the reason, when the library cannot be loaded.
    LazyOutput(synth::Post post, std::function<void(const std::string&)> missing)
        : post_(std::move(post)), missing_(std::move(missing)) {}

    int deviceCount() override { return real().deviceCount(); }
    sound::MidiDevice device(int id) override { return real().device(id); }
    void open(int id) override;
    void close() override { real().close(); }
    bool isOpen() const override { return real_ && real_->isOpen(); }
    void queue(const sound::MidiEvent& event) override { real().queue(event); }
    void send(const sound::MidiEvent& event) override { real().send(event); }
    void start() override { real().start(); }
    void stop() override { real().stop(); }
    int volumeLeft() const override { return real_ ? real_->volumeLeft() : 0; }
    int volumeRight() const override { return real_ ? real_->volumeRight() : 0; }
    void setVolume(int left, int right) override { real().setVolume(left, right); }
    sound::SoundProblem problem() const override {
        return real_ ? real_->problem() : sound::SoundProblem::None;
    }
    sound::Fitness fitness(int program, int lowest, int highest) const override {
        return real_ ? real_->fitness(program, lowest, highest) : sound::Fitness::Unknown;
    }

  private:
    sound::MidiOutput& real();
    void load();

    synth::Post post_;
    std::function<void(const std::string&)> missing_;
    std::unique_ptr<sound::MidiOutput> real_;
    form::Connection told_, known_;
};

}  // namespace zepha9
