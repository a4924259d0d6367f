#include "soundfont/tone.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>
#include <vector>

using namespace soundfont;

namespace {

constexpr double rate = 44100;

struct Synthetic {
    double cents = 0;    ///< off the frequency that is expected
    double decay = 1;    ///< of the amplitude, e-folds a second
    double silence = 0;  ///< ms before it begins
    double rise = 0;     ///< ms from nothing to its full amplitude
    double noise = 0;    ///< amplitude
    double vibrato = 0;  ///< cents up and down, six times a second
    double third = 0;    ///< cents by which a strong third partial is off, as a bell's
};

std::vector<float> sound(double hz, const Synthetic& like) {
    std::vector<float> samples(static_cast<std::size_t>(0.6 * rate));
    std::minstd_rand chance(1);
    std::normal_distribution<double> noise(0, 1);
    double phase = 0;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double t = double(i) / rate - like.silence / 1000;
        if (t < 0) continue;
        const double wave = like.vibrato * std::sin(2 * std::numbers::pi * 6 * t);
        phase += hz * std::exp2((like.cents + wave) / 1200) / rate;
        const double swell = like.rise > 0 ? std::min(1.0, 1000 * t / like.rise) : 1;
        double sum = like.noise * noise(chance);
        for (int k = 1; k <= 6; ++k) {
            const double ratio = k == 3 ? 3 * std::exp2(like.third / 1200) : k;
            const double strength = like.third != 0 && k == 3 ? 4 : 4 * k;
            sum += std::sin(2 * std::numbers::pi * ratio * phase) / strength;
        }
        samples[i] = static_cast<float>(sum * swell * std::exp(-like.decay * t));
    }
    return samples;
}

}  // namespace

TEST(Tone, AnySteadyPitchOfTheRangeIsFoundToATenthOfACent) {
    for (const double hz : {65.41, 130.8, 440.0, 987.8, 2093.0})
        for (const double cents : {-61.0, -8.9, 0.0, 0.1, 28.0, 146.0}) {
            SCOPED_TRACE(testing::Message() << hz << " Hz, " << cents << " cents");
            for (const double decay : {0.0, 3.0}) {
                const Tone tone = toneOf(sound(hz, {.cents = cents, .decay = decay}), rate, hz);
                EXPECT_NEAR(tone.pitch.cents, cents, 0.1);
                EXPECT_TRUE(tone.hasPitch());
            }
        }
}

TEST(Tone, WhatCannotBeSureIsNot) {
    const double hz = 440;
    const Tone wavering = toneOf(sound(hz, {.cents = 5, .vibrato = 20}), rate, hz);
    EXPECT_NEAR(wavering.pitch.cents, 5, 3 * wavering.pitch.uncertainty) << "on both sides alike";
    EXPECT_GT(wavering.pitch.uncertainty, 0.3);
    EXPECT_FALSE(toneOf(sound(hz, {.decay = 60, .noise = 3}), rate, hz).hasPitch()) << "a noise";
    EXPECT_FALSE(toneOf(sound(hz, {.third = 50}), rate, hz).hasPitch()) << "a bell";
    EXPECT_TRUE(toneOf(sound(hz, {.third = 8}), rate, hz).hasPitch()) << "a stiff string";
    const Tone silent = toneOf(std::vector<float>(26460), rate, hz);
    EXPECT_FALSE(silent.sounds() || silent.hasPitch() || silent.isSteep());
    EXPECT_FALSE(toneOf({}, rate, hz).sounds());
}

TEST(Tone, ATonesOctaveIsHeard) {
    for (const double hz : {110.0, 440.0, 1046.5}) {
        const auto octave = [&](double sounding) {
            return toneOf(sound(sounding, {}), rate, hz).octave;
        };
        EXPECT_EQ(octave(hz / 2), -1) << hz;
        EXPECT_EQ(octave(hz), 0) << hz;
        EXPECT_EQ(octave(2 * hz), 1) << hz;
    }
}

TEST(Tone, AttackIsWhereItIsHeardAndASlowOneIsKnownAsSuch) {
    for (const double silence : {0.0, 3.0, 6.2}) {
        const Tone tone = toneOf(sound(440, {.silence = silence}), rate, 440);
        EXPECT_NEAR(tone.attack, silence, 2);
        EXPECT_TRUE(tone.isSteep());
    }
    EXPECT_FALSE(toneOf(sound(440, {.decay = 0, .rise = 120}), rate, 440).isSteep());
}
