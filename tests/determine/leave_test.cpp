#include "support/drill_fixture.h"

#include <gtest/gtest.h>

namespace determine {
namespace {

using support::DrillFixture;

/// Every way to set a task or a repetition sounding, and what must come before it.
struct Way {
    const char* button;
    bool answered;
};
constexpr Way ways[] = {{"CmdNextAufg", false}, {"wieder", false}, {"wieder2", true}};

void prepare(DrillFixture& drill, const Way& way) {
    drill.z.tempoIdx = 9;
    drill.run();
    if (std::string(way.button) != "CmdNextAufg") drill.next();
    if (way.answered) drill.answerRight();
}

/// Some time later: nothing has gone on, nothing sounds, the device is audible.
void expectQuietHome(DrillFixture& drill) {
    EXPECT_EQ(drill.sheet(), nullptr);
    const auto starts = drill.midiOut.starts.size();
    drill.wait(20000);
    EXPECT_EQ(drill.midiOut.starts.size(), starts);
    EXPECT_TRUE(drill.midiOut.sounding().empty());
    EXPECT_TRUE(drill.midiOut.queued.empty());
    EXPECT_EQ(drill.midiOut.volume, std::pair(40000, 30000));
    EXPECT_TRUE(drill.host.faults.empty());
    EXPECT_TRUE(drill.dialogs.messages.empty());
    EXPECT_TRUE(drill.programm.forms.loaded("einstellung1")->visible());
    EXPECT_TRUE(std::filesystem::exists(drill.wertung.xml.datei()));
}

TEST(Leaving, InEveryWaitAndWhileItSoundsLeavesNoNote) {
    for (const Way& way : ways)
        for (const int after :
             {1, 49, 50, 51, 99, 100, 101, 149, 150, 151, 400, 2399, 2549, 2551}) {
            SCOPED_TRACE(std::string(way.button) + " " + std::to_string(after));
            DrillFixture drill;
            prepare(drill, way);
            std::size_t starts = 0;
            drill.later(after, [&] {
                drill.click("zurueck");
                starts = drill.midiOut.starts.size();
            });
            drill.click(way.button);
            drill.wait(3000);
            EXPECT_EQ(drill.midiOut.starts.size(), starts);
            expectQuietHome(drill);
        }
}

TEST(Leaving, InTheMiddleOfAFadeLeavesTheDeviceAudible) {
    for (const Way& way : ways)
        for (const int step : {1, 40, 80, 82, 120, 161}) {
            SCOPED_TRACE(std::string(way.button) + " " + std::to_string(step));
            DrillFixture drill;
            prepare(drill, way);
            int steps = 0;
            drill.midiOut.volumeSet = [&] {
                if (++steps == step) drill.loop.post([&] { drill.click("zurueck"); });
            };
            drill.click(way.button);
            drill.wait(1);
            expectQuietHome(drill);
        }
}

TEST(Leaving, WhenAllFormsAreUnloadedInAWaitNothingGoesOn) {
    for (const int after : {20, 70, 120, 500}) {
        SCOPED_TRACE(after);
        DrillFixture drill;
        prepare(drill, ways[0]);
        drill.later(after, [&] { drill.programm.forms.unloadAll(); });
        drill.click("CmdNextAufg");
        drill.wait(600);
        EXPECT_EQ(drill.programm.forms.last(), nullptr);
        EXPECT_TRUE(drill.midiOut.queued.empty());
        EXPECT_TRUE(drill.host.faults.empty());
        EXPECT_EQ(drill.midiOut.volume, std::pair(40000, 30000));
    }
}

TEST(Leaving, ByTheCloseBoxIsTheSameAndTwiceIsOnce) {
    DrillFixture drill;
    prepare(drill, ways[1]);
    Arbeitsblatt1& sheet = *drill.sheet();
    drill.later(30, [&] {
        sheet.closeBox();
        sheet.closeBox();
    });
    drill.click("wieder");
    expectQuietHome(drill);
}

TEST(Leaving, ThenTheNextRunIsAFreshOne) {
    DrillFixture drill;
    prepare(drill, ways[0]);
    for (int n = 0; n < 3; ++n) {
        drill.later(75, [&] { drill.click("zurueck"); });
        drill.click("CmdNextAufg");
        drill.wait(500);
        drill.run();
        EXPECT_EQ(drill.caption("zaehler", 0), "0");
    }
    drill.next();
    EXPECT_TRUE(drill.answer(drill.z.skala_nr));
    EXPECT_EQ(drill.caption("zaehler", 0), "1");
}

TEST(Fault, InADrawIsLoggedShownAndLeadsHome) {
    DrillFixture drill;
    drill.z.uebungsmodus = 1;
    drill.run();
    drill.z.matbox.redim(0, 0);
    drill.click("CmdNextAufg");
    drill.wait(1000);
    EXPECT_EQ(drill.sheet(), nullptr);
    ASSERT_EQ(drill.host.faults.size(), 1U);
    EXPECT_EQ(drill.host.faults[0].at(0).text(), "zepha9.MatWahl.arbeitsblatt1");
    EXPECT_EQ(drill.host.faults[0].at(1), core::Value(9));
    EXPECT_EQ(drill.dialogs.messages.size(), 1U);
    EXPECT_TRUE(drill.programm.forms.loaded("einstellung1")->visible());
}

}  // namespace
}  // namespace determine
