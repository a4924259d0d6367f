#include "rehearsal/temp_folder.h"
#include "soundfont/digest.h"
#include "soundfont/measured_font.h"
#include "soundfont/meter.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

using namespace soundfont;
using namespace std::chrono_literals;

namespace {

constexpr const char* font = "/usr/share/sounds/sf2/TimGM6mb.sf2";
const FontTable::Origin origin{"0123456789abcdef0123456789abcdef", "2.3.1"};

Instrument madeUp(double cents) {
    Instrument instrument;
    for (int key = lowestKey; key <= highestKey; ++key)
        instrument.at(key) = {-20.5, 1.25, 0.5, {cents + key, 0.25}};
    return instrument;
}

std::string contentOf(const std::filesystem::path& file) {
    std::ostringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    return content.str();
}

}  // namespace

TEST(FontTable, IsReadAsItWasWrittenAndNotWhenItIsDamagedOrAnothers) {
    const rehearsal::TempFolder folder;
    const std::filesystem::path file = folder.path() / "table.txt";
    FontTable table(origin);
    table.set(0, madeUp(-40));
    table.set(127, madeUp(-60.25));
    table.save(file);
    const auto read = FontTable::load(file, origin);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->find(1), nullptr);
    EXPECT_EQ(read->missing().size(), 126U);
    ASSERT_NE(read->find(127), nullptr);
    EXPECT_DOUBLE_EQ(read->find(127)->at(48).pitch.cents, -12.25);
    EXPECT_DOUBLE_EQ(read->find(0)->correction(50), -10);
    EXPECT_DOUBLE_EQ(read->find(0)->lag(50), 1.25);

    EXPECT_FALSE(FontTable::load(file, {origin.digest, "2.3.2"})) << "another synthesiser";
    EXPECT_FALSE(FontTable::load(file, {digestOf("x"), origin.version})) << "another font";
    const std::string whole = contentOf(file);
    for (const std::string& damaged :
         {whole.substr(0, whole.size() / 2), whole.substr(0, whole.size() - 9), whole + "x",
          std::string()}) {
        std::ofstream(file, std::ios::binary) << damaged;
        EXPECT_FALSE(FontTable::load(file, origin)) << damaged.size();
    }
    std::string changed = whole;
    changed[whole.size() / 2] ^= 1;
    std::ofstream(file, std::ios::binary) << changed;
    EXPECT_FALSE(FontTable::load(file, origin)) << "a digit is another";
}

TEST(FontTable, CorrectsOnlyWhatIsSure) {
    Instrument instrument = madeUp(0);
    instrument.at(60) = {-20, 1, 1, {7.5, 0.3}};
    instrument.at(61) = {-20, 1, 1, {7.5, 12}};
    instrument.at(62) = {-20, 1, 1, {820, 0.3}};
    instrument.at(63) = {-110, 1, 1, {7.5, 0.3}};
    instrument.at(64) = {-20, 90, 70, {0, 0.3}};
    EXPECT_DOUBLE_EQ(instrument.correction(60), -7.5);
    for (const int unsure : {61, 62, 63}) EXPECT_DOUBLE_EQ(instrument.correction(unsure), 0);
    EXPECT_DOUBLE_EQ(instrument.lag(64), 1.25) << "as usual with this instrument";
}

TEST(FontTable, TellsWhatAnInstrumentIsWorthInARange) {
    Instrument instrument = madeUp(-60);
    EXPECT_EQ(instrument.fitness(48, 84), Fitness::Fit);
    instrument.at(80).level = -110;
    EXPECT_EQ(instrument.fitness(48, 84), Fitness::PartlySilent);
    EXPECT_EQ(instrument.fitness(48, 72), Fitness::Fit) << "there it sounds";
    for (int key = 60; key < 66; ++key) instrument.at(key).pitch.uncertainty = 20;
    EXPECT_EQ(instrument.fitness(48, 72), Fitness::UnclearPitch);
    instrument.isThere = false;
    EXPECT_EQ(instrument.fitness(48, 72), Fitness::Missing) << "another one sounds";
    Instrument organ = madeUp(-60);
    for (int key = lowestKey; key <= highestKey; ++key) organ.at(key).octave = -1;
    EXPECT_EQ(organ.fitness(48, 72), Fitness::OtherOctave);
}

TEST(FontTable, MakesNotesThatStandOutAsLoudAsTheOthers) {
    Instrument instrument = madeUp(0);
    for (int key = lowestKey; key <= highestKey; ++key) instrument.at(key).level = -20 - key / 24.0;
    instrument.at(60).level -= 6;
    EXPECT_NEAR(instrument.evenness(60), 4, 0.2) << "what the velocity leaves";
    EXPECT_NEAR(instrument.evenness(61), -2, 0.2) << "the others come down to it";
}

TEST(MeasuredFont, WhatIsAskedForIsMeasuredFirstAndTheRestIsKept) {
    const rehearsal::TempFolder folder;
    const std::filesystem::path own = folder.path() / "fonts";
    {
        MeasuredFont measured(font, {{}, own, MELVORA_MEASURE});
        const auto organ = measured.wait(16, 60s);
        ASSERT_TRUE(organ);
        EXPECT_NEAR(organ->at(60).pitch.cents, 3.2, 1) << "as the font has it";
        for (int i = 0; i < 1000 && !measured.known(0); ++i) std::this_thread::sleep_for(100ms);
    }
    const auto file = tableFile(own, {digestOfFile(font), Meter::version()});
    const auto kept = FontTable::load(file, {digestOfFile(font), Meter::version()});
    ASSERT_TRUE(kept);
    EXPECT_NE(kept->find(0), nullptr);
}

/// What was measured would belong to neither of the two.
TEST(MeasuredFont, AFileThatIsReplacedIsMeasuredNoFurtherAndNotKept) {
    const rehearsal::TempFolder folder;
    const std::filesystem::path copy = folder.path() / "font.sf2", own = folder.path() / "fonts";
    std::filesystem::copy_file(font, copy);
    MeasuredFont measured(copy, {{}, own, {}});
    ASSERT_TRUE(measured.wait(16, 60s));
    std::filesystem::copy_file(font, folder.path() / "other.sf2");
    std::filesystem::rename(folder.path() / "other.sf2", copy);
    EXPECT_FALSE(measured.wait(40, 60s));
    EXPECT_FALSE(std::filesystem::exists(own));
}

TEST(MeasuredFont, WithoutAFontOrAFolderNothingIsKnownAndNobodyWaitsInVain) {
    MeasuredFont none("/nowhere.sf2", {});
    EXPECT_FALSE(none.wait(0, 60s));
    MeasuredFont unkept(font, {{}, "/proc/melvora", {}});
    EXPECT_TRUE(unkept.wait(7, 60s)) << "without the tool, too";
}

TEST(MeasuredFont, ThePackagedTableIsWhatTheFontIsMeasuredToBe) {
    const auto measured = Meter(font).measure(11, {});
    const FontTable::Origin packaged{digestOfFile(font), Meter::version()};
    const auto table = FontTable::load(tableFile(MELVORA_FONT_TABLES, packaged), packaged);
    if (!table) GTEST_SKIP() << "another font or synthesiser is installed; it is measured anew";
    EXPECT_TRUE(table->missing().empty());
    for (const int key : {lowestKey, 60, 72, highestKey}) {
        const Tone& kept = table->find(11)->at(key);
        EXPECT_NEAR(kept.pitch.cents, measured->at(key).pitch.cents, 0.1) << key;
        EXPECT_NEAR(kept.level, measured->at(key).level, 0.1) << key;
        EXPECT_NEAR(kept.attack, measured->at(key).attack, 0.3) << key;
    }
}
