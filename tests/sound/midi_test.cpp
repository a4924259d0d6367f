#include "sound/midi.h"

#include "core/bench_programm.h"
#include "support/recording_midi.h"

#include <gtest/gtest.h>

#include <set>

namespace sound {
namespace {

struct MidiTest : testing::Test {
    void init() {
        bench.p.host.HostVerbinden();
        midi.MidiGeraete(out);
        midi.MidiInit(out);
    }
    core::BenchProgramm bench;
    support::RecordingMidi out{bench.loop};
    Midi midi{bench.loop, bench.p.host};
};

TEST_F(MidiTest, TakesTheHostsDeviceOrTheLastOfTheList) {
    for (const auto& [given, device] :
         {std::pair<std::optional<std::string>, int>{"0", 0}, {"-1", -1}, {{}, 1}}) {
        core::BenchProgramm other;
        other.host.midi = given;
        other.p.host.HostVerbinden();
        Midi own(other.loop, other.p.host);
        const auto devices = own.MidiGeraete(out);
        ASSERT_EQ(devices.size(), 3U) << "the built-in one and two ports";
        EXPECT_EQ(devices[0].technology, 5);
        own.MidiInit(out);
        EXPECT_EQ(out.opened, device);
    }
}

TEST_F(MidiTest, ANoteIsAnOnAndAnOffWithItsTagAMillionHigher) {
    init();
    midi.MidiNote(60, 500, 450, 3, 7);
    midi.setLautstaerke(33);
    midi.MidiNote(61, 1000, 450, 0, 8);
    midi.MidiNote(62, 1500, 450, 0, 9, 12);
    ASSERT_EQ(out.queued.size(), 6U);
    const auto expect = [&](std::size_t i, std::array<int, 5> want) {
        const MidiEvent& e = out.queued[i];
        EXPECT_EQ((std::array<int, 5>{e.status, e.data1, e.data2, e.time, e.tag}), want) << i;
    };
    expect(0, {147, 60, 100, 500, 7});
    expect(1, {131, 60, 100, 950, 1000007});
    expect(2, {144, 61, 33, 1000, 8});
    expect(4, {144, 62, 12, 1500, 9});
    EXPECT_TRUE(out.starts.empty());
}

TEST_F(MidiTest, BendsAndInstrumentsAreSentAtOnce) {
    init();
    midi.MidiPitchBend(4, 79);
    midi.SetzeKlangfarbe(127, 8);
    ASSERT_EQ(out.sends.size(), 2U);
    const MidiEvent bend = out.sends[0].event, instrument = out.sends[1].event;
    EXPECT_EQ((std::array{bend.status, bend.data1, bend.data2}), (std::array{228, 0, 79}));
    EXPECT_EQ((std::array{instrument.status, instrument.data1}), (std::array{200, 127}));
    EXPECT_TRUE(out.queued.empty());
}

TEST_F(MidiTest, AFadeOutAndInComesBackToBothVolumesInSmallSteps) {
    init();
    midi.MidiAusblenden();
    EXPECT_EQ(out.volume, std::pair(0, 0));
    midi.MidiEinblenden();
    EXPECT_EQ(out.volume, std::pair(40000, 30000));
    EXPECT_EQ(out.starts.size(), 1U);
    for (std::size_t i = 1; i + 1 < out.volumes.size(); ++i)
        ASSERT_LE(std::abs(out.volumes[i].first - out.volumes[i - 1].first), 500) << i;
}

TEST_F(MidiTest, ADeviceWithoutVolumeIsOnlyStoppedAndStarted) {
    init();
    out.volume = {0, 0};
    midi.MidiAusblenden();
    midi.MidiEinblenden();
    EXPECT_TRUE(out.volumes.empty());
    EXPECT_EQ(out.starts.size(), 1U);
}

TEST_F(MidiTest, ResetAfterAFadeOutMakesTheDeviceAudibleAgain) {
    init();
    midi.MidiAusblenden();
    midi.MidiReset();
    EXPECT_EQ(out.volume, std::pair(40000, 30000));
    midi.MidiAusblenden();
    midi.MidiInit(out);
    EXPECT_EQ(out.volume, std::pair(40000, 30000));
    EXPECT_TRUE(out.isOpen());
}

/// Whatever moment of a fade a reset comes in, the device ends at its volume.
TEST_F(MidiTest, AResetInTheMiddleOfAFadeLeavesTheFullVolume) {
    init();
    for (const bool in : {false, true})
        for (const int step : {0, 1, 40, 79}) {
            SCOPED_TRACE((in ? "in " : "out ") + std::to_string(step));
            if (in) midi.MidiAusblenden();
            int left = step;
            out.volumeSet = [&] {
                if (left-- == 0) bench.loop.post([&] { midi.MidiReset(); });
            };
            if (in)
                midi.MidiEinblenden();
            else
                midi.MidiAusblenden();
            out.volumeSet = nullptr;
            EXPECT_EQ(out.volume, std::pair(40000, 30000));
            out.setVolume(40000, 30000);
        }
}

TEST_F(MidiTest, TheQueueEndsWithItsLastEvent) {
    init();
    int ended = 0;
    out.queueEmpty = [&] { ++ended; };
    midi.MidiNote(60, 0, 450, 0, 0);
    midi.MidiNote(62, 500, 450, 0, 1);
    midi.MidiEinblenden();
    bench.loop.advance(600);
    EXPECT_EQ(out.sounding(), (std::set{std::pair{0, 62}}));
    bench.loop.advance(350);
    EXPECT_EQ(ended, 1);
    EXPECT_TRUE(out.sounding().empty());
}

}  // namespace
}  // namespace sound
