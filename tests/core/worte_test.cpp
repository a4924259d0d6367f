#include "core/worte.h"

#include "support/fake_words.h"

#include <gtest/gtest.h>

namespace core {
namespace {

TEST(Worte, AreVoidUntilThereIsALanguageThatKnowsThem) {
    support::FakeWords words;
    words.lacking = {"7s"};
    Worte worte(&words);
    EXPECT_EQ(worte.Wort(354), "VOID");
    worte.SprachenLaden();
    worte.SpracheSetzen("Deutsch");
    EXPECT_EQ(worte.Wort(354), "W354") << "also what was asked for before";
    EXPECT_EQ(worte.Wort(7), "VOID");
    worte.SpracheSetzen("English");
    worte.SpracheSetzen("Klingon");
    EXPECT_EQ(worte.Wort(354) + worte.suffix(), "E354en") << "an unknown name changes nothing";
}

}  // namespace
}  // namespace core
