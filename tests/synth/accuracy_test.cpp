#include "synth/sound_meter.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace synth::test;

TEST(Accuracy, NotesBeginWhenPlannedAndAreWithinHalfACentOfTheirBend) {
    constexpr double measuring = 0.01;
    for (const auto& tuning : tunings) {
        SCOPED_TRACE(tuning.name);
        for (const auto& note : measure(tuning, brief, 60, 300)) EXPECT_LE(std::fabs(note.ms), 1.5);
        for (const auto& note : measure(tuning, steady, 60, 1000))
            EXPECT_LE(std::fabs(note.cents), 0.5 + measuring);
    }
}
