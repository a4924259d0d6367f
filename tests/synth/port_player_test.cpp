#include "synth/port_player.h"

#include "synth/mail.h"
#include "synth/sound_meter.h"

#include <gtest/gtest.h>

#include <mutex>

using namespace synth::test;
using Bytes = std::vector<unsigned char>;
using Kind = synth::Command::Kind;

namespace {

/// A player on a port that keeps what it is sent.
struct Port {
    void play(std::vector<sound::MidiEvent> list) {
        player->put({.kind = Kind::Play, .events = std::move(list), .run = 1});
    }
    bool silent() {
        const std::lock_guard lock(mutex);
        return sent.empty();
    }

    std::mutex mutex;
    std::vector<Bytes> sent;
    Mail mail;
    int ends = 0;
    std::unique_ptr<synth::PortPlayer> player = std::make_unique<synth::PortPlayer>(
        [this](const Bytes& bytes) {
            const std::lock_guard lock(mutex);
            sent.push_back(bytes);
        },
        synth::Player::Reports{.ended = [this](std::uint32_t) { mail.post()([this] { ++ends; }); },
                               .problemChanged = [] {}});
};

}  // namespace

TEST(PortPlayer, SendsMessagesUnchangedAndInTheOrderOfTheirTimes) {
    Port port;
    port.player->put({.kind = Kind::Send, .event = {.status = 0xc2, .data1 = 73, .data2 = 0}});
    port.player->put({.kind = Kind::Send, .event = {.status = 0xe2, .data1 = 0, .data2 = 61}});
    auto notes = note(2, 62, 40, 30);
    append(notes, note(2, 60, 0, 40, 90));
    port.play(notes);
    ASSERT_TRUE(port.mail.runUntil([&] { return port.ends == 1; }));
    const std::vector<Bytes> expected{{0xc2, 73},     {0xe2, 0, 61},  {0xb2, 123, 0},
                                      {0x92, 60, 90}, {0x82, 60, 90}, {0x92, 62, 100},
                                      {0x82, 62, 100}};
    EXPECT_EQ(port.sent, expected);
}

TEST(PortPlayer, CutEndsSoundingNotesCentresBendsAndForgetsTheRest) {
    for (const bool byClosing : {false, true}) {
        SCOPED_TRACE(byClosing ? "closed" : "stopped");
        Port port;
        auto notes = note(0, 60, 0, 60000);
        append(notes, note(0, 64, 200, 100));
        port.play(notes);
        while (port.silent()) std::this_thread::yield();
        if (!byClosing) {
            port.player->put({.kind = Kind::Silence});
            port.mail.runFor(std::chrono::milliseconds(300));
        }
        port.player.reset();
        const std::vector<Bytes> expected{
            {0x90, 60, 100}, {0x80, 60, 100}, {0xb0, 123, 0}, {0xe0, 0, 64}};
        EXPECT_EQ(port.sent, expected);
        EXPECT_EQ(port.ends, 0);
    }
}
