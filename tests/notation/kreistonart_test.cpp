// Keys of spelled tasks: every key, mode and range is spelled right and stays on its staff.
#include "notation/kreistonart.h"

#include "core/katalog.h"
#include "notation/notenzeile.h"

#include <gtest/gtest.h>

#include <set>

namespace notation {
namespace {

struct Draw {
    explicit Draw(KreisTonart::Art art) : keys(z, rnd, a, art) {
        z.skal_typ = 0;
        z.skal_anz = 6;
        engine::SkalaTabellen(a, 0);
        keys.LaufBeginn();
    }
    base::Rnd rnd{11};
    core::Zustand z;
    engine::Aufgabe a;
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

TEST(Key, EveryKeyModeAndRangeIsSpelledAndStaysOnItsStaff) {
    for (const auto art : {KreisTonart::Art::Bestimmen, KreisTonart::Art::Schreiben})
        for (int size = 0; size < 4; ++size)
            for (int lowest = 36; lowest + 12 * (size + 1) <= 96; lowest += 12)
                for (int key = -7; key <= 7; ++key)
                    for (int mode = 0; mode < 7; ++mode)
                        for (int octave = 0; octave < 8; ++octave) {
                            Draw d(art);
                            d.rnd.restart(octave);
                            d.z.FrquMinAkt = lowest;
                            d.a.oktSpanne = size;
                            d.z.skala_nr = mode;
                            d.a.quintLage = key;
                            d.keys.Toene();
                            SCOPED_TRACE(testing::Message() << key << " " << mode << " " << lowest);
                            expectSpelled(d.a);
                            const i16 staff = d.a.noten[7] < 67 ? 1 : 0;
                            int line = -1;
                            for (int k = 0; k < 8; ++k) {
                                const Stelle place = YAusTon({d.a.noten[k], d.a.notenQz[k]}, staff);
                                EXPECT_GE(place.y, 8);
                                EXPECT_LE(place.y, 136);
                                const int height = place.y - 28 * place.oktave;
                                if (k > 0) {
                                    EXPECT_EQ(height, line - 4) << "a step up";
                                }
                                line = height;
                            }
                        }
}

TEST(Key, IsDrawnAsTheExerciseWants) {
    std::set<int> naming, writing;
    Draw name(KreisTonart::Art::Bestimmen), write(KreisTonart::Art::Schreiben);
    for (int i = 0; i < 2000; ++i) {
        name.keys.Ziehen();
        naming.insert(name.a.quintLage);
        write.keys.Ziehen();
        writing.insert(write.a.quintLage);
    }
    EXPECT_EQ(naming.size(), 15U);
    EXPECT_EQ(writing.size(), 12U);
    EXPECT_FALSE(writing.contains(0));
    EXPECT_EQ(*writing.rbegin(), 6);
    write.z.uebungsmodus = core::modus::pruefung;
    write.z.matbox.redim(3, 1);
    write.z.matbox(2, 1) = -5;
    write.a.matIndex = 2;
    write.keys.Toene();
    EXPECT_EQ(write.a.quintLage, -5) << "the bag's row decides";
}

}  // namespace
}  // namespace notation
