#include "core/katalog.h"

#include "core/worte.h"
#include "rehearsal/number_words.h"

#include <gtest/gtest.h>

#include <set>

namespace core {
namespace {

using namespace katalog;

struct KatalogTest : testing::Test {
    KatalogTest() {
        worte.SprachenLaden();
        worte.SpracheSetzen("Deutsch");
        k.KatalogInit(worte);
    }
    rehearsal::NumberWords words;
    Worte worte{&words};
    Katalog k;
};

TEST_F(KatalogTest, EveryScaleHasANameOfItsOwnAndNothingElseHas) {
    for (int typ = 0; typ < kategorienAnz; ++typ) {
        const int last = kategorien[static_cast<std::size_t>(typ)].skal_max;
        std::set<std::string> names;
        for (int nr = 0; nr < 11; ++nr) {
            const std::string& name = k.skal_name[typ][nr];
            EXPECT_EQ(!name.empty() && names.insert(name).second, nr <= last) << typ << ' ' << nr;
        }
    }
}

TEST_F(KatalogTest, RecordsHaveLettersWhereANameShowsSigns) {
    words.texts = {{"204s", "♭2 Dorian ♭2"}, {"378s", "Lydian ♯5"}};
    Worte anew{&words};
    anew.SprachenLaden();
    anew.SpracheSetzen("Deutsch");
    k.KatalogInit(anew);
    EXPECT_EQ(k.skal_name[1][1], "♭2 Dorian ♭2");
    EXPECT_EQ(k.keptName(1, 1), "b2 Dorian b2");
    EXPECT_EQ(k.keptName(1, 2), "Lydian #5");
    EXPECT_EQ(k.keptName(1, 3), k.skal_name[1][3]);
}

/// Rising it is the lower half of the modes that its name tells, falling their upper half.
TEST_F(KatalogTest, ATetrachordIsNamedByAllModesThatItIsHalfOf) {
    const auto tone = [](int degree) {
        return diatonisch[static_cast<std::size_t>(degree % 7)] + 12 * (degree / 7);
    };
    for (int nr = 0; nr < 10; ++nr)
        for (int richtung = 0; richtung < 2; ++richtung) {
            SCOPED_TRACE(std::to_string(nr) + (richtung ? " falling" : " rising"));
            const Skala* tetra = eigenesMuster(6, nr);
            ASSERT_NE(tetra, nullptr);
            const std::string& name = k.tetra_name[nr][richtung];
            for (int mode = 0; mode < 7; ++mode) {
                const int start = mode + 4 * richtung;
                bool half = true;
                for (int i = 0; i < 4; ++i)
                    half &=
                        tone(start + i) - tone(start) == tetra->stufe[static_cast<std::size_t>(i)];
                EXPECT_EQ(name.find(k.skal_name[0][mode]) != std::string::npos, half)
                    << k.skal_name[0][mode] << " in '" << name << "'";
            }
        }
}

}  // namespace
}  // namespace core
