#include "melvora/midi_ports.h"

#include <gtest/gtest.h>

namespace melvora {
namespace {

TEST(MidiPorts, ADeviceIsFoundByNameHoweverThePortsAreNumbered) {
    const QStringList today{"Midi Through:Midi Through Port-0 14:0", "Piano:Piano MIDI 1 20:0",
                            "Piano:Piano MIDI 2 20:1"};
    const QStringList tomorrow{"Midi Through:Midi Through Port-0 14:0", "Pad:Pad 20:0",
                               "Piano:Piano MIDI 1 24:0", "Piano:Piano MIDI 2 24:1"};
    for (qsizetype i = 0; i < today.size(); ++i) {
        SCOPED_TRACE(today[i].toStdString());
        const QString name = steadyName(today[i]);
        EXPECT_EQ(deviceNumber(name, today), i);
        ASSERT_GE(deviceNumber(name, tomorrow), 0);
        EXPECT_EQ(steadyName(tomorrow[deviceNumber(name, tomorrow)]), name);
    }
    EXPECT_EQ(deviceNumber("Pad:Pad", today), builtInSynthesiser);
    EXPECT_EQ(deviceNumber("", {}), builtInSynthesiser);
}

}  // namespace
}  // namespace melvora
