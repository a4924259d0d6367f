#include "synth/sound_meter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace synth::test;
using Kind = synth::Command::Kind;

namespace {

constexpr float silent = 1e-4F;

std::vector<sound::MidiEvent> scale() {
    std::vector<sound::MidiEvent> events;
    for (int i = 0; i < 8; ++i) append(events, note(i + 1, 60 + i, i * 300, 270));
    return events;
}

double pitch(const Rendering& of, double beginMs) {
    return frequency(of.sound, static_cast<std::size_t>(beginMs * 44.1),
                     static_cast<std::size_t>(300 * 44.1), 261.63);
}

}  // namespace

TEST(Engine, CutsInAnyOrderLeaveNothingSoundingAndNothingQueued) {
    using enum synth::Command::Kind;
    using Steps = std::vector<std::pair<Kind, int>>;  // what is sent, milliseconds until the next
    for (const Steps& steps : {Steps{{Play, 0}, {Silence, 20}},   // at once
                               Steps{{Play, 10}, {Silence, 20}},  // in the lead-in
                               Steps{{Play, 99}, {Silence, 2}, {Reset, 20}},
                               Steps{{Play, 31},
                                     {Play, 350},
                                     {Silence, 1},
                                     {Play, 64},
                                     {Reset, 1},
                                     {Play, 3},
                                     {Reset, 20}}}) {
        SCOPED_TRACE(steps.size());
        Rendering rendering;
        for (int channel = 1; channel <= 8; ++channel) rendering.send(0xc0 + channel, steady, 0);
        for (const auto& [kind, ms] : steps) {
            if (kind == Play)
                rendering.play(scale());
            else
                rendering.put({.kind = kind});
            if (ms > 0) rendering.render(ms);
        }
        EXPECT_FALSE(rendering.engine.busy());
        const double cut = double(rendering.sound.size()) / 44.1;
        rendering.render(3000);
        EXPECT_LT(rendering.peak(cut), silent);
        EXPECT_TRUE(rendering.ended.empty());
    }
}

TEST(Engine, EventsMayComeInAnyOrderAndNotesOfNoLengthEnd) {
    auto backwards = scale();
    std::ranges::reverse(backwards);
    append(backwards, note(0, 64, 500, 0));
    append(backwards, note(0, 65, 400, 100));
    append(backwards, note(0, 65, 500, 100));  // begins as the one before it ends
    Rendering rendering;
    rendering.send(0xc0, steady, 0);
    rendering.play(backwards, 7);
    rendering.render(7 * 300 + 270);
    EXPECT_TRUE(rendering.ended.empty());
    rendering.render(3000);
    EXPECT_EQ(rendering.ended, std::vector<std::uint32_t>{7}) << "once, after the last event";
    EXPECT_FALSE(rendering.engine.busy());
    EXPECT_LT(rendering.peak(4000), silent);
    EXPECT_GT(rendering.peak(560, 30), 0.01F);
}

TEST(Engine, BendSentBeforeTheStartHoldsAndACutCentresIt) {
    Rendering rendering;
    rendering.send(0xc0, steady, 0);
    const auto sounding = [&] {
        const double begin = double(rendering.sound.size()) / 44.1;
        rendering.play(note(0, 60, 0, 1000));
        rendering.render(1000);
        rendering.put({.kind = Kind::Silence});
        return pitch(rendering, begin + 400);
    };
    const double reference = sounding();
    rendering.send(0xe0, 0, 127);
    EXPECT_NEAR(1200 * std::log2(sounding() / reference), 196.875, 0.6);
    EXPECT_NEAR(sounding(), reference, 0.01);
}

TEST(Engine, ResetLosesInstrumentsAndACutKeepsThem) {
    const auto level = [](Kind cut) {
        Rendering rendering;
        rendering.send(0xc0, steady, 0);
        rendering.put({.kind = cut});
        rendering.play(note(0, 60, 0, 3000));
        rendering.render(2900);
        return rendering.peak(2700);
    };
    EXPECT_GT(level(Kind::Silence), 2 * level(Kind::Reset)) << "a piano fades, an organ does not";
}

TEST(Engine, VolumeScalesEachSideAndCutsAndFadesDoNotClick) {
    Rendering rendering;
    rendering.send(0xc0, steady, 0);
    rendering.play(note(0, 48, 0, 5000));
    rendering.render(500);
    const float full = rendering.peak(300);
    const auto steepest = [&](double beginMs) {
        float most = 0;
        for (auto i = static_cast<std::size_t>(beginMs * 44.1) + 1; i < rendering.sound.size(); ++i)
            most = std::max(most, std::fabs(rendering.sound[i] - rendering.sound[i - 1]));
        return most;
    };
    const float smooth = steepest(300);
    rendering.engine.setVolume(0.5F, 1.0F);
    rendering.render(300);
    EXPECT_NEAR(rendering.peak(600), full / 2, full / 10);
    rendering.engine.setVolume(0.0F, 0.0F);
    rendering.render(200);
    EXPECT_LT(rendering.peak(900), silent);
    rendering.engine.setVolume(1.0F, 1.0F);
    rendering.render(100);
    rendering.put({.kind = Kind::Silence});
    rendering.render(100);
    EXPECT_LT(steepest(500), 1.3F * smooth);
    EXPECT_FALSE(rendering.engine.busy());
}

TEST(Engine, NineLoudChannelsDoNotClip) {
    for (const int program : {0, steady, 60}) {
        SCOPED_TRACE(program);
        std::vector<sound::MidiEvent> chord;
        Rendering rendering;
        for (int channel = 0; channel < 9; ++channel) {
            rendering.send(0xc0 + channel, program, 0);
            append(chord, note(channel, 55 + channel, 0, 1000, 127));
        }
        rendering.play(chord);
        rendering.render(1000);
        EXPECT_LE(rendering.peak(), 1.0F);
        EXPECT_GT(rendering.peak(), 0.5F);
    }
}

TEST(Accuracy, NotesAreHeardWhenPlannedAndAreInTuneWithinHalfACent) {
    constexpr double measuring = 0.05;
    for (const auto& tuning : tunings) {
        SCOPED_TRACE(tuning.name);
        for (const auto& note : measure(tuning, brief, 60, 300)) EXPECT_LE(std::fabs(note.ms), 1.5);
        for (const int key : {48, 60, 72})
            for (const auto& note : measure(tuning, steady, key, 1000))
                EXPECT_LE(std::fabs(note.cents), 0.5 + measuring) << key;
    }
}

TEST(Accuracy, WhatIsMistunedInTheFontIsPlayedInTune) {
    constexpr int guitar = 24, violin = 40, vibraphone = 11, trombone = 57;
    for (const int program : {guitar, violin, vibraphone, trombone}) {
        SCOPED_TRACE(program);
        const auto instrument = instrumentOf(program);
        const auto deviations = measure(tunings.front(), program, 60, 1000);
        double before = 0, after = 0;
        for (int key = 60; key <= 72; ++key)
            before = std::max(before, std::fabs(instrument->at(key).pitch.cents));
        for (const auto& note : deviations) after = std::max(after, std::fabs(note.cents));
        EXPECT_GT(before, 1.9) << "the font is another one by now";
        EXPECT_LE(after, 0.5 + 2 * instrument->at(66).pitch.uncertainty);
        EXPECT_LT(after, before / 1.5);
    }
}
