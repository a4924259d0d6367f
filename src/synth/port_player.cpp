#include "synth/port_player.h"

#include "soundfont/fluid_error.h"

#include <utility>

namespace synth {

namespace {

constexpr int noteOff = 0x80;
constexpr int noteOn = 0x90;
constexpr int keyPressure = 0xa0;
constexpr int control = 0xb0;
constexpr int program = 0xc0;
constexpr int channelPressure = 0xd0;
constexpr int bend = 0xe0;
constexpr int allNotesOff = 123;

}  // namespace

PortPlayer::PortPlayer(ports::SendBytes port, Reports reports)
    : port_(std::move(port)),
      reports_(std::move(reports)),
      sequencer_(
          (soundfont::quietFluidLog(), soundfont::made(new_fluid_sequencer2(0), "a sequencer"))),
      queue_(
          sequencer_.get(),
          fluid_sequencer_register_client(sequencer_.get(), "port", &PortPlayer::onEvent, this),
          [](int value) { return value; }, reports_.ended),
      thread_([this] { run(); }) {}

PortPlayer::~PortPlayer() {
    mailbox_.put({.kind = Command::Kind::Silence});
    mailbox_.quit();
}

void PortPlayer::run() {
    while (true) {
        advance();
        while (auto command = mailbox_.take()) {
            advance();
            perform(*command);
        }
        if (mailbox_.quitting()) return;
        const auto next = queue_.nextTick();
        if (next)
            mailbox_.wait(begin_ + std::chrono::milliseconds(*next));
        else
            mailbox_.wait();
    }
}

/// Brings the sequencer to the present; it plays what has become due.
void PortPlayer::advance() {
    const auto passed =
        std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - begin_);
    fluid_sequencer_process(sequencer_.get(), static_cast<unsigned>(passed.count()));
}

void PortPlayer::perform(Command& command) {
    if (command.kind == Command::Kind::Send) return queue_.send(command.event);
    queue_.cancel();
    silence(command.kind);
    if (command.kind == Command::Kind::Play)
        queue_.play(std::move(command.events), leadIn, command.run);
}

void PortPlayer::silence(Command::Kind kind) {
    for (int channel = 0; channel < 16; ++channel) {
        auto& keys = sounding_.at(channel);
        if (!used_.test(channel)) continue;
        for (int key = 0; key < 128; ++key)
            if (keys.at(key) > 0) send(noteOff + channel, key, std::exchange(keys.at(key), 0));
        send(control + channel, allNotesOff, 0);
        if (kind == Command::Kind::Play) continue;
        send(bend + channel, 0, 64);
        if (kind == Command::Kind::Reset) send(program + channel, 0, 0);
    }
    if (kind != Command::Kind::Play) used_.reset();
}

void PortPlayer::onEvent(unsigned, fluid_event_t* event, fluid_sequencer_t*, void* self) {
    static_cast<PortPlayer*>(self)->forward(event);
}

void PortPlayer::forward(fluid_event_t* event) {
    const int channel = fluid_event_get_channel(event);
    const int key = fluid_event_get_key(event);
    int& velocity = sounding_.at(channel).at(key & 0x7f);
    switch (fluid_event_get_type(event)) {
        case FLUID_SEQ_NOTEON:
            velocity = fluid_event_get_velocity(event);
            return send(noteOn + channel, key, velocity);
        case FLUID_SEQ_NOTEOFF:
            // It carries the velocity with which its note began.
            return send(noteOff + channel, key, std::exchange(velocity, 0));
        case FLUID_SEQ_KEYPRESSURE:
            return send(keyPressure + channel, key, fluid_event_get_value(event));
        case FLUID_SEQ_CONTROLCHANGE:
            return send(control + channel, fluid_event_get_control(event),
                        fluid_event_get_value(event));
        case FLUID_SEQ_PROGRAMCHANGE:
            return send(program + channel, fluid_event_get_program(event), 0);
        case FLUID_SEQ_CHANNELPRESSURE:
            return send(channelPressure + channel, fluid_event_get_value(event), 0);
        case FLUID_SEQ_PITCHBEND: {
            const int value = fluid_event_get_pitch(event);
            return send(bend + channel, value & 0x7f, value >> 7);
        }
        default:
            return;
    }
}

void PortPlayer::send(int status, int data1, int data2) {
    used_.set(status & 0x0f);
    const int kind = status & 0xf0;
    std::vector<unsigned char> message{static_cast<unsigned char>(status),
                                       static_cast<unsigned char>(data1)};
    if (kind != program && kind != channelPressure)
        message.push_back(static_cast<unsigned char>(data2));
    port_(message);
}

}  // namespace synth
