#include "support/drill_fixture.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace results {
namespace {

namespace fs = std::filesystem;

std::string content(const fs::path& path) {
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

std::vector<std::string> filesIn(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    return names;
}

TEST(Record, ARunWithoutAnswersHasItsSettingsAndNoLessons) {
    support::DrillFixture drill;
    Skalaxml& xml = drill.wertung.xml;
    xml.SkalaXmlNeu();
    drill.wait(61000);
    xml.SkalaXmlSichern({"4", "Tempo <schnell", "\"60\" & mehr", "Tonraum", "größer"});
    EXPECT_EQ(filesIn(drill.folder), std::vector<std::string>{"RSX260102100000.xml"});
    EXPECT_EQ(content(xml.datei()), R"(<?xml version="1.0" encoding="UTF-8"?>
<exercise>
	<properties programm="ZEPHA9" ukey="u7" exercise="W154" timestamp="02.01.2026 10:01:01" description="Untersuchung: W492" />
	<settings>
		<setting key="Tempo &lt;schnell" value="&quot;60&quot; &amp; mehr" />
		<setting key="Tonraum" value="größer" />
	</settings>
	<lessons />
</exercise>
)");
}

TEST(Record, TheSameSecondIsTheSameFileAndTheLaterStays) {
    support::DrillFixture drill;
    Skalaxml& xml = drill.wertung.xml;
    xml.SkalaXmlNeu();
    xml.SkalaXmlSichern({"0"});
    xml.SkalaXmlNeu();
    xml.LektionNeu("second");
    xml.SkalaXmlSichern({"0"});
    EXPECT_EQ(filesIn(drill.folder).size(), 1U);
    EXPECT_NE(content(xml.datei()).find("value=\"second\""), std::string::npos);
    EXPECT_FALSE(xml.lektion().empty());
    xml.SkalaXmlNeu();
    EXPECT_TRUE(xml.lektion().empty()) << "a new record has no lesson in hand";
    EXPECT_TRUE(xml.antwort().empty());
}

TEST(Record, AFolderThatIsGoneIsToldWithItsPath) {
    support::DrillFixture drill;
    drill.words.texts["815s"] = "not to %1";
    fs::remove_all(drill.folder);
    drill.wertung.xml.SkalaXmlNeu();
    try {
        drill.wertung.xml.SkalaXmlSichern({"0"});
        FAIL() << "written to nowhere";
    } catch (const base::RuntimeError& fault) {
        EXPECT_EQ(fault.number(), 75);
        EXPECT_NE(std::string(fault.what()).find(drill.folder.string()), std::string::npos);
    }
}

}  // namespace
}  // namespace results
