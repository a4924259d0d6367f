#include "sound/midi.h"

#include "core/bench_programm.h"
#include "support/recording_midi.h"

#include <gtest/gtest.h>

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

TEST_F(MidiTest, AFadeOutAndInComesBackToBothVolumesInSmallSteps) {
    init();
    out.volume = {0, 0};
    midi.MidiAusblenden();
    midi.MidiEinblenden();
    EXPECT_TRUE(out.volumes.empty()) << "a device without volume is only stopped and started";
    out.volume = {40000, 30000};
    midi.MidiAusblenden();
    EXPECT_EQ(out.volume, std::pair(0, 0));
    midi.MidiEinblenden();
    EXPECT_EQ(out.volume, std::pair(40000, 30000));
    EXPECT_EQ(out.starts.size(), 2U);
    for (std::size_t i = 1; i + 1 < out.volumes.size(); ++i)
        ASSERT_LE(std::abs(out.volumes[i].first - out.volumes[i - 1].first), 500) << i;
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
    midi.MidiAusblenden();
    midi.MidiInit(out);
    EXPECT_EQ(out.volume, std::pair(40000, 30000)) << "so does opening it anew";
}

}  // namespace
}  // namespace sound
