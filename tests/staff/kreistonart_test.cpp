// Keys of spelled tasks: every key, mode and range is spelled right and stays on its staff.
#include "staff/kreistonart.h"

#include "engine/draw.h"
#include "staff/grenzen.h"

#include <gtest/gtest.h>

#include <set>

namespace staff {
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

/// One letter a note, a step up each, on its staff and read back from it; what is written lies
/// within the limits.
void expectSpelledOnStaff(const Draw& d, bool written) {
    const i16 s = d.a.noten[7] < 67 ? 1 : 0;
    const Grenze limits = grenzenAuf(s, {d.a.quintLage, KreisTonart::stufenQz(0, d.z.skala_nr),
                                         d.a.transpLage, d.z.FrquMinAkt, d.z.FrquMaxAkt});
    ASSERT_EQ(d.a.noten[7], d.a.noten[0] + 12);
    int below = 0;
    for (int k = 0; k < 8; ++k) {
        const Ton note = d.note(k);
        ASSERT_EQ(tonklasse(note.qz), note.midi % 12);
        ASSERT_EQ(stammton(note.qz), (stammton(d.a.notenQz[0]) + k) % 7);
        ASSERT_LE(std::abs(vorzeichen(note.qz)), 1);
        const Stelle place = YAusTon(note, s);
        ASSERT_GE(place.y, written ? 20 : 8) << "the head is seen whole";
        ASSERT_LE(place.y, written ? 128 : 136);
        const int height = place.y - 28 * place.oktave;
        ASSERT_TRUE(k == 0 || height == below - 4);
        below = height;
        // B#1, which only begins a task and takes no drop, lies below the lowest C.
        if (note.midi > 24) {
            ASSERT_EQ(TonAusY(place.y, s, vorzeichen(note.qz), place.oktave), note);
        }
        if (written && k > 0 && k < 7) {
            ASSERT_GE(place.y, limits.hoechste());
            ASSERT_LE(place.y, limits.tiefste());
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
                            expectSpelledOnStaff(d, art == Art::Schreiben);
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
}  // namespace staff
