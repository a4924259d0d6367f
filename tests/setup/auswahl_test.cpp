// Scales after choice: which are on offer, where they stand, and when they are enough.
#include "setup/auswahl.h"

#include "setup/scale_choice.h"
#include "setup/set_up.h"

#include <cstdlib>

namespace setup::test {

namespace {

TEST_F(SetUp, TheListsHoldWhatTheDirectionsAllow) {
    struct Row {
        int category, melody, direction, count, item;
        const char* text;
    };
    for (const Row& row : {Row{5, 0, 2, 18, 1, "- W163"},
                           {6, 0, 1, 10, 2, "- W426 3W700W435W701W115 "},
                           {0, 1, 0, 7, 6, "W375"}}) {
        SCOPED_TRACE(row.text);
        option("ska_ausw", 0).click();
        EXPECT_TRUE(button("cmdOK").enabled());
        EXPECT_FALSE(group(10).visible());
        combo("skal_typ_cmb").setListIndex(row.category);
        combo("Combo_richtung").setListIndex(row.direction);
        option("abfolge", row.melody).click();
        option("ska_ausw", 1).click();
        EXPECT_EQ(list(0).count(), row.count);
        EXPECT_EQ(list(0).item(row.item).text, row.text);
        EXPECT_FALSE(usable("skal_typ_cmb"));
        EXPECT_FALSE(button("cmdOK").enabled());
    }
}

/// Whatever is moved in whatever order, both lists stay in catalogue order, ascending above
/// descending, and each move is judged; what has no code, from a file, stands behind its like.
TEST_F(SetUp, BothListsStaySorted) {
    BareForm bare(drill.programm);
    ScaleChoice scales(bare, drill.programm, bare.groups(0), bare.groups(1));
    bool shown = false, enough = true;
    scales.onShown = [&](bool now) { shown = now; };
    scales.onJudged = [&](bool now) { enough = now; };
    bare.get<form::Option>("ska_ausw", 1).click();
    EXPECT_TRUE(shown);
    EXPECT_FALSE(enough);
    const auto list = [&](int index) -> auto& { return bare.get<form::ListBox>("lst_ska", index); };
    base::Rnd chance(5);
    const auto rank = [](int code) { return 2 * std::abs(code) + (code < 0 ? 1 : 0); };
    for (int move = 0; move < 300; ++move) {
        const int from = chance.below(2);
        if (list(from).count() == 0) continue;
        list(from).click(chance.below(list(from).count()));
        EXPECT_EQ(list(0).count() + list(1).count(), 14);
        EXPECT_EQ(scales.chosen().size(), list(1).items().size());
        EXPECT_EQ(enough, auswahlBeurteilen(list(1).items(), 2, {0, 2}) == Urteil::Genug);
        for (const int l : {0, 1})
            for (int i = 1; i < list(l).count(); ++i)
                ASSERT_LT(rank(list(l).item(i - 1).data), rank(list(l).item(i).data));
    }
    EXPECT_EQ(sortierteStelle({{"from a file", 0}, {"another", 0}, {"+ dorisch", 2}}, 0), 1);
}

TEST_F(OnHost, TheHintSaysWhatTheChoiceLacks) {
    struct Row {
        int direction, final, ascending, descending;
        const char* hint;  ///< "" when it is enough
    };
    for (const Row& row : {Row{0, 2, 1, 0, "W396"},
                           {1, 2, 0, 2, ""},
                           {0, 1, 2, 0, "W398"},
                           {0, 1, 3, 0, ""},
                           {2, 2, 1, 1, "W397"},
                           {2, 2, 2, 2, ""},
                           {2, 2, 3, 2, "W783"},
                           {2, 2, 5, 4, "W783"},
                           {2, 2, 7, 5, ""},
                           {2, 2, 6, 1, "W397"},
                           {2, 1, 2, 2, "W399"},
                           {2, 1, 3, 3, ""},
                           {2, 1, 2, 5, "W399"}}) {
        SCOPED_TRACE(testing::Message() << row.direction << row.final << " " << row.ascending
                                        << " up, " << row.descending << " down");
        Practice run(host);
        run.combo("Combo_richtung").setListIndex(row.direction);
        run.option("final", row.final).click();
        run.pick({});
        for (int code = 1; code <= row.ascending; ++code) run.pick({code});
        for (int code = 1; code <= row.descending; ++code) run.pick({-code});
        const auto& hint = run.get<form::Label>("lb10", 0);
        EXPECT_EQ(hint.visible() ? hint.caption() : "", row.hint);
        const bool enough = *row.hint == '\0';
        EXPECT_EQ(run.button("cmdOK").enabled(), enough);
        if (enough) continue;
        run.button("klang_contr").click();
        run.loop.advance(20000);
        EXPECT_FALSE(run.button("cmdOK").enabled()) << "the sound check does not free it";
        run.mode(4);
        EXPECT_FALSE(run.button("cmdOK").enabled()) << "nor does an exam";
        EXPECT_EQ(run.z.ska_ausw, 0);
    }
}

}  // namespace

}  // namespace setup::test
