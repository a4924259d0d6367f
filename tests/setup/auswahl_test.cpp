// Scales after choice: which are on offer, where they stand, and when they are enough.
#include "setup/auswahl.h"

#include "setup/set_up.h"

#include <cstdlib>

namespace setup::test {

namespace {

using Items = std::vector<form::ItemList::Item>;

Items chosen(int ascending, int descending) {
    Items items;
    for (int i = 1; i <= ascending; ++i) items.push_back({"", i});
    for (int i = 1; i <= descending; ++i) items.push_back({"", -i});
    return items;
}

/// The rule once more, as a picture: rows are ascending scales 0..8, columns descending ones 0..8;
/// "+" enough, "." too few, "=" must be equal in number.
TEST(Auswahl, TruthTableOfBothDirections) {
    const char* const two[] = {"..===....",
                               "..===....",
                               "==+======",
                               "=="
                               "=+=====",
                               "====+====",
                               "..===++++",
                               "..===++++",
                               "..===++++",
                               "..===++++"};
    const char* const three[] = {"...==....", "...==....", "...==....", "===+=====", "====+====",
                                 "...==++++", "...==++++", "...==++++", "...==++++"};
    for (const int final : {2, 1, 0}) {
        SCOPED_TRACE(final);
        for (int p = 0; p <= 8; ++p) {
            std::string row;
            for (int m = 0; m <= 8; ++m) {
                const Urteil urteil = auswahlBeurteilen(chosen(p, m), final, {0, 2});
                row += urteil == Urteil::Genug ? '+' : urteil == Urteil::ZuWenig ? '.' : '=';
            }
            std::string wanted = (final == 1 ? three : two)[p];
            // What is too small as a whole is told as too few, whatever its balance.
            for (int m = 0; m <= 8; ++m)
                if (p + m < (final == 1 ? 6 : 4)) wanted[static_cast<std::size_t>(m)] = '.';
            EXPECT_EQ(row, wanted) << p << " ascending";
        }
    }
}

TEST(Auswahl, OneDirectionNeedsTwoOrThree) {
    for (const Richtungen r : {Richtungen{0, 0}, Richtungen{0, 1}, Richtungen{1, 2}})
        for (const int final : {0, 1, 2})
            for (int n = 0; n <= 10; ++n)
                EXPECT_EQ(auswahlBeurteilen(chosen(n, 0), final, r) == Urteil::Genug,
                          n >= (final == 1 ? 3 : 2));
}

TEST_F(SetUp, TheListsHoldWhatTheDirectionsAllow) {
    combo("skal_typ_cmb").setListIndex(5);
    option("ska_ausw", 1).click();
    EXPECT_EQ(list(0).count(), 18);
    EXPECT_EQ(list(0).item(0).data, 1);
    EXPECT_EQ(list(0).item(1).data, -1);
    EXPECT_EQ(list(0).item(1).text, "- W163");
    EXPECT_FALSE(usable("skal_typ_cmb", form::Place::noIndex));
    EXPECT_FALSE(button("cmdOK").enabled());

    option("ska_ausw", 0).click();
    EXPECT_TRUE(button("cmdOK").enabled());
    EXPECT_FALSE(group(10).visible());
    combo("skal_typ_cmb").setListIndex(6);
    combo("Combo_richtung").setListIndex(1);
    option("ska_ausw", 1).click();
    EXPECT_EQ(list(0).item(2).text, "- W426 3W700W435W701W115 ");

    option("ska_ausw", 0).click();
    combo("skal_typ_cmb").setListIndex(0);
    option("abfolge", 1).click();
    option("ska_ausw", 1).click();
    EXPECT_EQ(list(0).item(6).text, "W375") << "a melody has no direction";
    EXPECT_EQ(list(0).count(), 7);
}

/// Whatever is moved in whatever order, both lists stay in catalogue order, ascending above
/// descending.
TEST_F(SetUp, BothListsStaySorted) {
    option("ska_ausw", 1).click();
    base::Rnd chance(5);
    const auto rank = [](int code) { return 2 * std::abs(code) + (code < 0 ? 1 : 0); };
    for (int move = 0; move < 300; ++move) {
        const int from = chance.below(2);
        if (list(from).count() == 0) continue;
        list(from).click(chance.below(list(from).count()));
        EXPECT_EQ(list(0).count() + list(1).count(), 14);
        EXPECT_EQ(z.einzelAnz, list(1).count() - 1);
        for (const int l : {0, 1})
            for (int i = 1; i < list(l).count(); ++i)
                ASSERT_LT(rank(list(l).item(i - 1).data), rank(list(l).item(i).data));
    }
}

TEST(Selection, ItemsWithoutACodeStandBehindEachOther) {
    EXPECT_EQ(sortierteStelle({{"from a file", 0}, {"another", 0}, {"+ dorisch", 2}}, 0), 1);
}

TEST_F(SetUp, TheHintSaysWhatTheChoiceLacks) {
    const auto hint = [&] {
        return get<form::Label>("lb10", 0).visible() ? get<form::Label>("lb10", 0).caption() : "";
    };
    option("ska_ausw", 1).click();
    EXPECT_EQ(hint(), "W397");
    for (const int code : {1, -1, 2, -2}) pick(code);
    EXPECT_EQ(hint(), "");
    EXPECT_TRUE(button("cmdOK").enabled());
    pick(3);
    EXPECT_EQ(hint(), "W783");
    EXPECT_FALSE(button("cmdOK").enabled());
    pick(-3);
    EXPECT_EQ(hint(), "");
    option("final", 1).click();
    EXPECT_EQ(hint(), "") << "three of each are enough";
    list(1).click(0);
    EXPECT_EQ(hint(), "W399");
    EXPECT_EQ(get<form::Label>("wahlStand").caption(), "W817");
    button("klang_contr").click();
    loop.advance(20000);
    EXPECT_FALSE(button("cmdOK").enabled()) << "the sound check does not free what is not enough";
    combo("training_Combo").setListIndex(4);
    EXPECT_FALSE(button("cmdOK").enabled()) << "nor does an exam";
    EXPECT_EQ(z.ska_ausw, 0);
}

}  // namespace

}  // namespace setup::test
