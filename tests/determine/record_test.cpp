#include "support/drill_fixture.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace determine {
namespace {

using support::DrillFixture;

std::string nameOf(const DrillFixture& drill, int scale) {
    return drill.programm.katalog.skal_name[0][scale];
}

/// An answer as the record has it. @param first whether it is the task's first.
std::string answer(int lfd, bool first, int tenths, int repeats, bool right,
                   const std::string& scale) {
    std::ostringstream text;
    const auto property = [&](const char* key, const auto& value) {
        text << "\t\t\t\t\t<property key=\"" << key << "\" value=\"" << value << "\" />\n";
    };
    text << "\t\t\t\t<answer lfd=\"" << lfd << (first ? "\">\n" : "\" Skala=\"1\">\n");
    property("Dauer Antwort", tenths);
    property("Anz Whlg", repeats);
    property("Antwort", right ? "true" : "false");
    property("Skala", scale);
    text << "\t\t\t\t</answer>\n";
    return text.str();
}

std::string lesson(const std::string& scale, const std::string& answers) {
    return "\t\t<lesson>\n\t\t\t<properties>\n\t\t\t\t<property key=\"Tonskala\" value=\"" + scale +
           "\" />\n\t\t\t</properties>\n\t\t\t<answers>\n" + answers +
           "\t\t\t</answers>\n\t\t</lesson>\n";
}

TEST(Record, TellsTheWholeRun) {
    DrillFixture drill(2);
    drill.choose({1, 2, 3});
    drill.z.richtung = 0;
    drill.run();
    std::string lessons;

    drill.next();
    const int second = drill.z.skala_nr, confused = (second + 1) % 3;
    drill.wait(2300);
    drill.answer(confused);
    drill.wait(650);
    drill.click("wieder");
    drill.wait(drill.taskLength() + 500);
    drill.answerRight();
    lessons +=
        lesson(nameOf(drill, second), answer(1, true, 23, 0, false, nameOf(drill, confused)) +
                                          answer(2, false, 12, 1, true, nameOf(drill, second)));

    drill.next();
    const int third = drill.z.skala_nr;
    drill.wait(400);
    drill.answer((third + 1) % 3);
    drill.wait(600);
    drill.answer((third + 2) % 3);
    lessons += lesson(nameOf(drill, third),
                      answer(1, true, 4, 0, false, nameOf(drill, (third + 1) % 3)) +
                          answer(2, false, 6, 0, false, nameOf(drill, (third + 2) % 3)));

    drill.next();
    lessons += "\t\t<lesson>\n\t\t\t<properties>\n\t\t\t\t<property key=\"Tonskala\" value=\"" +
               nameOf(drill, drill.z.skala_nr) +
               "\" />\n\t\t\t</properties>\n\t\t\t<answers />\n\t\t</lesson>\n";
    const std::string file = drill.wertung.xml.datei();
    drill.click("zurueck");

    std::ostringstream written;
    written << std::ifstream(file).rdbuf();
    const std::string text = written.str();
    const auto from = text.find("\t<lessons>\n"), to = text.find("\t</lessons>");
    ASSERT_NE(to, std::string::npos) << text;
    EXPECT_EQ(text.substr(from + 11, to - from - 11), lessons);
    EXPECT_EQ(text.substr(0, from), R"(<?xml version="1.0" encoding="UTF-8"?>
<exercise>
	<properties programm="ZEPHA9" ukey="u7" exercise="W154" timestamp=")" +
                                        drill.loop.now().dateAndTime() +
                                        R"(" description="Untersuchung: W492" />
	<settings>
		<setting key="Tempo" value="60" />
		<setting key="Tonraum" value="2" />
	</settings>
)");
}

}  // namespace
}  // namespace determine
