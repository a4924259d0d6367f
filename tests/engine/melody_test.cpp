#include "engine/melody.h"

#include "engine/bare_run.h"

#include <gtest/gtest.h>

#include <set>

namespace engine {
namespace {

TEST(MelodikFolge, EveryModeGivesSingableMelodiesOverAllDegrees) {
    std::map<int, int> starts, ends;
    for (const int typ : {0, 1, 2})
        for (int seed = 0; seed < 40; ++seed) {
            BareRun draw(hearing, seed);
            draw.category(typ);
            draw.z.abfolge = 1;
            draw.begin();
            for (int n = 0; n < 20; ++n) {
                const Task& a = draw.run->draw();
                const auto& order = a.ton_abfolg;
                const auto& notes = a.noten;
                SCOPED_TRACE(testing::Message() << typ << ' ' << a.skala_nr << ' ' << seed);
                std::set<int> degrees;
                for (int i = 0; i < 7; ++i) degrees.insert(order[i] % 7);
                ASSERT_EQ(degrees.size(), 7U) << "each degree once, the octave as the final";
                for (int i = 1; i < 7; ++i)
                    ASSERT_FALSE(awkward(notes[order[i - 1]], notes[order[i]])) << i;
                ++starts[order[0]];
                ++ends[order[7]];
                if (a.skala_nr == 6) {
                    ASSERT_NE(order[0], 4) << "no start on a diminished fifth";
                }
                if (order[0] == 4 && typ == 0) {
                    ASSERT_EQ(order[1] % 7, 0) << "the final follows the fifth";
                }
                const int before = notes[order[6]], last = notes[order[7]];
                ASSERT_NE(before, last) << "the last note is not repeated";
                ASSERT_NE(std::abs(notes[0] - before), 6);
                if (awkward(before, last)) {
                    ASSERT_TRUE(awkward(before, notes[0]) && awkward(before, notes[7]));
                }
            }
        }
    EXPECT_EQ(starts.size(), 3U);
    EXPECT_NEAR(starts[4] * 1.0 / 2400, 0.2 * 6 / 7, 0.05);
    EXPECT_EQ((std::set<int>{ends.begin()->first, ends.rbegin()->first}), (std::set{0, 7}));
    EXPECT_EQ(ends.size(), 2U);
}

TEST(MelodikFolge, NotesThatAllowNoMelodyAreRefusedInsteadOfTriedForEver) {
    Task a;
    for (int i = 0; i < 9; ++i) a.noten[i] = i % 2 == 0 ? 60 : 66;
    base::Rnd rnd(1);
    EXPECT_THROW(MelodikFolge(a, rnd), base::RuntimeError);
}

}  // namespace
}  // namespace engine
