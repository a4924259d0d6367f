// Keys of spelled tasks: every key, mode and range is spelled right and stays on its staff.
#include "notation/kreistonart.h"

#include "engine/draw.h"
#include "notation/grenzen.h"

#include <gtest/gtest.h>

#include <set>

namespace notation {
namespace {

using Art = KreisTonart::Art;

struct Draw : engine::Draw {
    explicit Draw(Art art, int seed = 1) : engine::Draw(seed), keys(z, rnd, a, art) {
        engine::SkalaTabellen(a, 0);
        keys.LaufBeginn();
    }
    Ton note(int k) const { return {a.noten[k], a.notenQz[k]}; }

    KreisTonart keys;
};

void expectSpelled(const engine::Aufgabe& a) {
    for (int k = 0; k < 8; ++k) {
        ASSERT_EQ(tonklasse(a.notenQz[k]), a.noten[k] % 12);
        ASSERT_EQ(stammton(a.notenQz[k]), (stammton(a.notenQz[0]) + k) % 7) << "one letter a note";
        ASSERT_LE(std::abs(vorzeichen(a.notenQz[k])), 1);
        if (k > 0) {
            ASSERT_GT(a.noten[k], a.noten[k - 1]);
        }
    }
    ASSERT_EQ(a.noten[7], a.noten[0] + 12);
}

/// Heights rise by a step a note and tell the notes; what is written lies within the limits.
void expectOnStaff(const Draw& d, bool written) {
    const i16 s = d.a.noten[7] < 67 ? 1 : 0;
    const Grenze limits = grenzenAuf(s, {d.a.quintLage, KreisTonart::stufenQz(0, d.z.skala_nr),
                                         d.a.transpLage, d.z.FrquMinAkt, d.z.FrquMaxAkt});
    int below = 0;
    for (int k = 0; k < 8; ++k) {
        const Stelle place = YAusTon(d.note(k), s);
        EXPECT_GE(place.y, written ? 20 : 8) << "the head is seen whole";
        EXPECT_LE(place.y, written ? 128 : 136);
        const int height = place.y - 28 * place.oktave;
        if (k > 0) {
            EXPECT_EQ(height, below - 4) << "a step up";
        }
        below = height;
        // B#1, which only begins a task and takes no drop, lies below the lowest C.
        if (d.a.noten[k] > 24) {
            EXPECT_EQ(TonAusY(place.y, s, vorzeichen(d.a.notenQz[k]), place.oktave), d.note(k));
        }
        if (written && k > 0 && k < 7) {
            EXPECT_GE(place.y, limits.hoechste());
            EXPECT_LE(place.y, limits.tiefste());
        }
    }
}

TEST(Key, EveryKeyModeAndRangeIsSpelledAndStaysOnItsStaff) {
    for (const auto art : {Art::Bestimmen, Art::Schreiben})
        for (int size = 0; size < 4; ++size) {
            const int range = 12 * (size + (art == Art::Schreiben ? 2 : 1));
            for (int lowest = 36; lowest + range <= 96; lowest += 12)
                for (int key = -7; key <= 7; ++key)
                    for (int mode = 0; mode < 7; ++mode)
                        for (int octave = 0; octave < 8; ++octave) {
                            SCOPED_TRACE(testing::Message() << key << " " << mode << " " << lowest);
                            Draw d(art, octave);
                            d.z.FrquMinAkt = lowest;
                            d.z.FrquMaxAkt = lowest + range;
                            d.a.oktSpanne = size;
                            d.z.skala_nr = mode;
                            d.a.quintLage = key;
                            d.keys.Toene();
                            expectSpelled(d.a);
                            expectOnStaff(d, art == Art::Schreiben);
                        }
        }
}

TEST(Key, IsDrawnAsTheExerciseWants) {
    std::set<int> naming, writing;
    Draw name(Art::Bestimmen), write(Art::Schreiben);
    for (int i = 0; i < 2000; ++i) {
        name.keys.Ziehen();
        naming.insert(name.a.quintLage);
        write.keys.Ziehen();
        writing.insert(write.a.quintLage);
    }
    EXPECT_EQ(naming.size(), 15U);
    EXPECT_EQ(writing, (std::set{-6, -5, -4, -3, -2, -1, 1, 2, 3, 4, 5, 6}));
}

}  // namespace
}  // namespace notation
