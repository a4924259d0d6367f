// The compiled word files as the programs load them.

#include <QString>
#include <QTranslator>

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace {

struct Row {
    const char* suffix;
    const char* name;
    const char* restdauer;  // word 461: stands before a number, so its last character is a blank
    const char* joiner;     // word 700, between the parts of a title
    const char* quarten;    // word 440, with the note A in the language's own note names
};

constexpr std::array<Row, 4> languages{{
    {"de", "Deutsch", "Restdauer: ", ": ", "Quarten ab A"},
    {"en", "English", "Time left: ", ": ", "fourths from A"},
    {"es", "Español", "Tiempo restante: ", ": ", "cuartas desde la"},
    {"fr", "Français", "Temps restant\u00a0: ", "\u00a0: ", "quartes depuis la"},
}};

class Words {
  public:
    explicit Words(const char* suffix)
        : loaded_(translator_.load(QString(WORDS_DIR "/melvoralang.%1.qm").arg(suffix))) {}

    bool loaded() const { return loaded_; }
    std::string text(const char* id) const { return translator_.translate("", id).toStdString(); }

  private:
    QTranslator translator_;
    bool loaded_;
};

}  // namespace

TEST(CompiledWords, KeepTheirTextsAndTheirBlanks) {
    for (const Row& row : languages) {
        SCOPED_TRACE(row.suffix);
        const Words words(row.suffix);
        ASSERT_TRUE(words.loaded());
        EXPECT_EQ(words.text("name"), row.name);
        EXPECT_EQ(words.text("461s"), row.restdauer);
        EXPECT_EQ(words.text("700s"), row.joiner);
        EXPECT_EQ(words.text("440s"), row.quarten);
        EXPECT_EQ(words.text("705s"), row.suffix);
    }
}

TEST(CompiledWords, AnUnknownNumberHasNoText) {
    const Words words("de");
    ASSERT_TRUE(words.loaded());
    EXPECT_EQ(words.text("9999s"), "");
    EXPECT_EQ(words.text("354"), "");
}

// An option's caption and an octave range are read side by side on a form: the octave that a range
// ends on in one list must bear the same name where another range begins on it.
TEST(CompiledWords, OneOctaveHasOneName) {
    struct Pair {
        const char* one;
        const char* other;
    };
    constexpr std::array<Pair, 9> pairs{{{"673s", "683s"},  // middle C
                                         {"671s", "681s"},
                                         {"672s", "682s"},
                                         {"674s", "684s"},
                                         {"672s", "693s"},
                                         {"673s", "694s"},
                                         {"674s", "695s"},
                                         {"675s", "696s"},
                                         {"683s", "694s"}}};
    for (const Row& row : languages) {
        const Words words(row.suffix);
        ASSERT_TRUE(words.loaded());
        for (const Pair& pair : pairs) {
            SCOPED_TRACE(std::string(row.suffix) + " " + pair.one + " " + pair.other);
            EXPECT_EQ(words.text(pair.one), words.text(pair.other));
            EXPECT_NE(words.text(pair.one), "");
        }
    }
}
