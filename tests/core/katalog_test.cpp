#include "core/katalog.h"

#include "core/worte.h"
#include "support/fake_words.h"

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
    support::FakeWords words;
    Worte worte{&words};
    Katalog k;
};

TEST_F(KatalogTest, FiftyFourScalesHaveNamesOfTheirOwnAndNothingElseHas) {
    int scales = 0;
    for (int typ = 0; typ < kategorienAnz; ++typ) {
        std::set<std::string> names;
        for (int nr = 0; nr < 11; ++nr) {
            const std::string& name = k.skal_name[typ][nr];
            const bool real = nr <= kategorien[static_cast<std::size_t>(typ)].skal_max;
            EXPECT_EQ(!name.empty(), real) << typ << ' ' << nr;
            if (real) names.insert(name);
            scales += real ? 1 : 0;
        }
        EXPECT_EQ(static_cast<int>(names.size()),
                  kategorien[static_cast<std::size_t>(typ)].skal_max + 1)
            << typ;
    }
    EXPECT_EQ(scales, 54);
}

TEST_F(KatalogTest, NamesStandWhereTheirScalesDo) {
    struct Row {
        int typ, nr;
        const char* name;
    };
    for (const Row& row : {Row{0, 0, "W344"},
                           {0, 5, "W115"},
                           {0, 6, "W375"},
                           {1, 0, "W386"},
                           {1, 6, "W528"},
                           {2, 0, "W460"},
                           {2, 7, "W636"},
                           {3, 2, "W264"},
                           {3, 7, "W389"},
                           {4, 0, "W426 1"},
                           {4, 4, "W426 5"},
                           {5, 0, "W163"},
                           {5, 7, "W443"},
                           {5, 8, "W445"},
                           {6, 9, "W426 10"}})
        EXPECT_EQ(k.skal_name[row.typ][row.nr], row.name) << row.typ << ' ' << row.nr;
    EXPECT_EQ(k.skal_typ_name[6], "W553");
    EXPECT_EQ(k.bereich_name[2], "W224");
    EXPECT_EQ(k.modus_name[2], "W565");
    EXPECT_EQ(k.typ_name[0] + k.typ_name[2] + k.typ_name[3], "");
    EXPECT_EQ(k.typ_name[1] + k.typ_name[4], "W492W718");
}

TEST_F(KatalogTest, ATetrachordIsNamedByTheModesItIsPartOf) {
    const std::map<std::pair<int, int>, std::string> named{
        {{0, 0}, "W700W344W701W402 "}, {{0, 1}, "W700W344W701W377 "}, {{2, 0}, "W700W435W701W375 "},
        {{2, 1}, "W700W435W701W115 "}, {{5, 0}, "W700W203W701W115 "}, {{5, 1}, "W700W203W701W402 "},
        {{6, 0}, "W700W377 "},         {{6, 1}, "W700W375 "}};
    for (int nr = 0; nr < 10; ++nr)
        for (int richtung = 0; richtung < 2; ++richtung) {
            const auto it = named.find({nr, richtung});
            EXPECT_EQ(k.tetra_name[nr][richtung], it == named.end() ? "" : it->second)
                << nr << ' ' << richtung;
        }
}

/// A tetrachord rising as the lower half of a mode, or falling as the upper half of one, is what
/// its name says.
TEST_F(KatalogTest, TheNamedModesBeginWithTheirTetrachord) {
    const std::map<std::string, int> degree{{"W344", 0}, {"W203", 1}, {"W435", 2}, {"W377", 3},
                                            {"W402", 4}, {"W115", 5}, {"W375", 6}};
    const auto tone = [](int start, int i) {
        return diatonisch[static_cast<std::size_t>((start + i) % 7)] + 12 * ((start + i) / 7);
    };
    for (int nr = 0; nr < 10; ++nr)
        for (const auto& [word, start] : degree) {
            if (k.tetra_name[nr][0].find(word) == std::string::npos) continue;
            const Skala* tetra = eigenesMuster(6, nr);
            ASSERT_NE(tetra, nullptr);
            for (int i = 0; i < 4; ++i)
                EXPECT_EQ(tone(start, i) - tone(start, 0),
                          tetra->stufe[static_cast<std::size_t>(i)])
                    << nr << ' ' << word;
        }
}

TEST(KatalogTables, NoPictureBelongsToTwoCategories) {
    std::map<int, int> owner;
    for (int typ = 0; typ < kategorienAnz; ++typ) {
        const Kategorie& kategorie = kategorien[static_cast<std::size_t>(typ)];
        for (const int basis : kategorie.bild_basis)
            for (int nr = 0; nr <= kategorie.skal_max; ++nr)
                EXPECT_EQ(owner.try_emplace(basis + nr, typ).first->second, typ) << basis + nr;
    }
    EXPECT_EQ(owner.size(), 73U) << "19 scales have a second picture";
}

}  // namespace
}  // namespace core
