#include "base/whole_file.h"
#include "support/desk.h"

#include <gtest/gtest.h>

namespace results {
namespace {

namespace fs = std::filesystem;

TEST(Record, IsOneFileASecondOfTheLastRunWithItsSettingsMasked) {
    support::Practice desk;
    Skalaxml& xml = desk.drill.xml;
    xml.SkalaXmlNeu();
    xml.LektionNeu("first");
    xml.SkalaXmlSichern({"0"});
    xml.SkalaXmlNeu();
    EXPECT_TRUE(xml.lektion().empty()) << "a new record has no lesson in hand";
    desk.wait(61000);
    xml.SkalaXmlSichern({"2", "Tempo <schnell", "\"60\"\x01 & größer\n&#1;"});
    const fs::path file = xml.datei();
    EXPECT_EQ(file.filename(), "RSX260102100000.xml");
    EXPECT_EQ(std::distance(fs::directory_iterator(file.parent_path()), {}), 1);
    const std::string text = base::readWhole(file, 1 << 20);
    EXPECT_NE(text.find("timestamp=\"02.01.2026 10:01:01\""), std::string::npos) << "of its end";
    EXPECT_EQ(text.substr(text.find("\t<settings>")), R"(	<settings>
		<setting key="Tempo &lt;schnell" value="&quot;60&quot;� &amp; größer&#10;&amp;#1;" />
	</settings>
	<lessons />
</exercise>
)");
    desk.programm.aufruf.tempOrdner.clear();
    xml.SkalaXmlNeu();
    EXPECT_EQ(xml.datei(), "RSX260102100101.xml") << "the current folder where no other is named";
    xml.LektionNeu("third");
    xml.AntwortNeu(xml.lektion(), 1);
    xml.AntwortSchluss(9.9e7F, 0);
    EXPECT_NE(xml.text().find("\"Dauer Antwort\" value=\"99000000\""), std::string::npos);
}

}  // namespace
}  // namespace results
