#include "synth/synth_output.h"

#include "ports/midi_ports.h"
#include "synth/port_player.h"
#include "synth/synth_player.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace synth {

namespace {

using sound::MidiDevice;
using sound::MidiEvent;
using sound::SoundProblem;

class SynthOutput : public sound::MidiOutput {
  public:
    SynthOutput(SynthOptions options, Post post)
        : post_(std::move(post)), builtIn_(std::move(options), reports()) {}

    int deviceCount() override {
        ports_ = ports::portNames();
        portId_ = mapper;
        return static_cast<int>(ports_.size());
    }

    MidiDevice device(int id) override {
        if (!isPort(id)) return {.technology = 5, .name = "FluidSynth"};
        return {.technology = 1, .name = ports_[static_cast<std::size_t>(id)]};
    }

    void open(int id) override {
        close();
        if (ports_.empty() && id != mapper) deviceCount();
        use(&builtIn_);
        if (isPort(id) && connect(id)) use(port_.get());
        setVolume(maxVolume, maxVolume);
        player_->put({.kind = Command::Kind::Reset});
    }

    void close() override {
        if (!isOpen()) return;
        stop();
        use(nullptr);
    }

    bool isOpen() const override { return player_ != nullptr; }

    void queue(const MidiEvent& event) override {
        if (isOpen()) events_.push_back(event);
    }

    void send(const MidiEvent& event) override {
        if (isOpen()) player_->put({.kind = Command::Kind::Send, .event = event});
    }

    void start() override {
        if (!isOpen()) return;
        ++run_;
        if (events_.empty()) {
            player_->put({.kind = Command::Kind::Silence});
            raiseEnd(run_);
            return;
        }
        player_->put(
            {.kind = Command::Kind::Play, .events = std::exchange(events_, {}), .run = run_});
    }

    void stop() override {
        ++run_;
        events_.clear();
        if (isOpen()) player_->put({.kind = Command::Kind::Silence});
    }

    int volumeLeft() const override { return hasVolume() ? left_ : 0; }
    int volumeRight() const override { return hasVolume() ? right_ : 0; }

    void setVolume(int left, int right) override {
        if (!hasVolume()) return;
        left_ = std::clamp(left, 0, maxVolume);
        right_ = std::clamp(right, 0, maxVolume);
        player_->setVolume(left_, right_);
    }

    SoundProblem problem() const override {
        return isOpen() ? player_->problem() : builtIn_.problem();
    }

    sound::Fitness fitness(int program, int lowest, int highest) const override {
        const Player& asked = isOpen() ? *player_ : static_cast<const Player&>(builtIn_);
        return asked.fitness(program, lowest, highest);
    }

  private:
    bool isPort(int id) const { return id >= 0 && id < static_cast<int>(ports_.size()); }
    bool hasVolume() const { return isOpen() && player_->hasVolume(); }

    /// A port has no problem; without a player it is the built-in synthesiser's that counts.
    void use(Player* player) {
        const SoundProblem before = problem();
        player_ = player;
        if (problem() != before) raiseProblem();
    }

    /// Keeps the connection that stands, unless the ports were listed since: then a port of the
    /// same name may be another one.
    bool connect(int id) {
        if (port_ && portId_ == id) return true;
        port_.reset();
        ports::SendBytes bytes = ports::openPort(ports_[static_cast<std::size_t>(id)]);
        if (!bytes) return false;
        port_ = std::make_unique<PortPlayer>(std::move(bytes), reports());
        portId_ = id;
        return true;
    }

    Player::Reports reports() {
        return {.ended = [this](std::uint32_t run) { raiseEnd(run); },
                .problemChanged = [this] { raiseProblem(); },
                .fitnessKnown = [this] { raise([this] { fitnessKnown(); }); }};
    }

    void raiseEnd(std::uint32_t run) {
        raise([this, run] {
            if (run == run_ && queueEmpty) queueEmpty();
        });
    }

    void raiseProblem() {
        raise([this] { problemChanged(); });
    }

    void raise(std::function<void()> call) {
        post_([alive = std::weak_ptr(alive_), call = std::move(call)] {
            if (alive.lock()) call();
        });
    }

    Post post_;
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
    std::vector<MidiEvent> events_;
    std::uint32_t run_ = 0;
    int left_ = maxVolume;
    int right_ = maxVolume;
    std::vector<std::string> ports_;
    int portId_ = mapper;
    Player* player_ = nullptr;
    SynthPlayer builtIn_;
    std::unique_ptr<PortPlayer> port_;
};

}  // namespace

std::unique_ptr<sound::MidiOutput> makeSynthOutput(SynthOptions options, Post post) {
    return std::make_unique<SynthOutput>(std::move(options), std::move(post));
}

}  // namespace synth
