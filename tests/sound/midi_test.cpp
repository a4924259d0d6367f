#include "sound/midi.h"

#include "support/desk.h"

#include <gtest/gtest.h>

namespace sound {
namespace {

TEST(Midi, TakesTheHostsDeviceOrTheLastOfTheList) {
    for (const auto& [given, device] : {std::pair<std::optional<std::string>, int>{"0", 0},
                                        {"-1", -1},
                                        {" 1 x", 1},
                                        {"40000", 1},
                                        {{}, 1}}) {
        support::Desk bench;
        bench.host.midi = given;
        bench.programm.host.HostVerbinden();
        rehearsal::MidiRecorder out{bench.loop};
        Midi midi(bench.loop, bench.programm.host);
        midi.MidiReset();
        midi.MidiNote(60, 0, 100, 0, 1);
        EXPECT_EQ(out.opened, rehearsal::MidiRecorder::none) << "before it is taken over";
        const auto devices = midi.MidiGeraete(out);
        ASSERT_EQ(devices.size(), 3U) << "the built-in one and two ports";
        EXPECT_EQ(devices[0].technology, 5);
        midi.MidiInit(out);
        EXPECT_EQ(out.opened, device);
    }
}

TEST(Midi, AFadeOutAndInComesBackToBothVolumesInSmallSteps) {
    support::Desk bench;
    bench.programm.host.HostVerbinden();
    rehearsal::MidiRecorder out{bench.loop};
    Midi midi{bench.loop, bench.programm.host};
    midi.MidiInit(out);
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
    midi.MidiAusblenden();
    midi.MidiInit(out);
    EXPECT_EQ(out.volume, std::pair(40000, 30000)) << "opened anew it is audible";
}

}  // namespace
}  // namespace sound
