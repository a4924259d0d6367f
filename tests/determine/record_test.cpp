#include "support/drill_fixture.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace determine {
namespace {

using support::DrillFixture;

TEST(Record, TellsTheWholeRun) {
    DrillFixture drill(2);
    drill.choose({1, 2, 3});
    drill.z.richtung = 0;
    drill.run();
    const auto name = [&](int scale) { return drill.programm.katalog.skal_name[0][scale % 3]; };

    drill.next();
    const int first = drill.z.skala_nr;
    drill.wait(2300);
    drill.answer((first + 1) % 3);
    drill.wait(650);
    drill.click("wieder");
    drill.wait(drill.taskLength() + 500);
    drill.answerRight();
    drill.next();
    const std::string second = name(drill.z.skala_nr);
    const std::string file = drill.wertung.xml.datei();
    drill.click("zurueck");

    std::ostringstream written;
    written << std::ifstream(file).rdbuf();
    EXPECT_EQ(written.str(), R"(<?xml version="1.0" encoding="UTF-8"?>
<exercise>
	<properties programm="ZEPHA9" ukey="u7" exercise="W154" timestamp=")" +
                                 drill.loop.now().dateAndTime() +
                                 R"(" description="Untersuchung: W492" />
	<settings>
		<setting key="Tempo" value="60" />
		<setting key="Tonraum" value="2" />
	</settings>
	<lessons>
		<lesson>
			<properties>
				<property key="Tonskala" value=")" +
                                 name(first) + R"(" />
			</properties>
			<answers>
				<answer lfd="1">
					<property key="Dauer Antwort" value="23" />
					<property key="Anz Whlg" value="0" />
					<property key="Antwort" value="false" />
					<property key="Skala" value=")" +
                                 name(first + 1) + R"(" />
				</answer>
				<answer lfd="2" Skala="1">
					<property key="Dauer Antwort" value="12" />
					<property key="Anz Whlg" value="1" />
					<property key="Antwort" value="true" />
					<property key="Skala" value=")" +
                                 name(first) + R"(" />
				</answer>
			</answers>
		</lesson>
		<lesson>
			<properties>
				<property key="Tonskala" value=")" +
                                 second + R"(" />
			</properties>
			<answers />
		</lesson>
	</lessons>
</exercise>
)");
}

}  // namespace
}  // namespace determine
