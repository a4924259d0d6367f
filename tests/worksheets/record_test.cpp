#include "support/drill_fixture.h"

#include <gtest/gtest.h>
#include <pugixml.hpp>

namespace worksheets {
namespace {

using support::DrillFixture;

/// Names and attributes of a record from a node on, in their order.
std::string told(const pugi::xml_node& node) {
    std::string text = std::string(node.name()) + "(";
    for (const auto attribute : node.attributes()) {
        const std::string name = attribute.name();
        text += (name == "key" || name == "value" ? "" : name + ":") + attribute.value() + " ";
    }
    for (const auto child : node.children()) text += told(child);
    return text + ")";
}

TEST(Record, TellsTheWholeRun) {
    DrillFixture drill(2);
    drill.choose({1, 2, 3});
    drill.z.richtung = 0;
    drill.run();
    const auto name = [&](int scale) { return drill.programm.katalog.skal_name[0][scale % 3]; };

    drill.next();
    const int first = drill.task().skala_nr;
    drill.wait(2300);
    drill.answer((first + 1) % 3);
    drill.wait(650);
    drill.click("wieder");
    drill.wait(drill.taskLength() + 500);
    drill.answerRight();
    drill.next();
    const std::string second = name(drill.task().skala_nr);
    const std::string file = drill.drill.xml.datei();
    drill.click("zurueck");

    pugi::xml_document document;
    ASSERT_TRUE(document.load_file(file.c_str()));
    const auto property = [](const std::string& text) { return "property(" + text + " )"; };
    EXPECT_EQ(told(document.child("exercise")),
              "exercise(properties(programm:ZEPHA9 ukey:u7 exercise:W154 timestamp:" +
                  drill.loop.now().dateAndTime() +
                  " description:Untersuchung: W492 )settings(setting(Tempo 60 )setting(Tonraum 2 ))"
                  "lessons(lesson(properties(" +
                  property("Tonskala " + name(first)) + ")answers(answer(lfd:1 " +
                  property("Dauer Antwort 23") + property("Anz Whlg 0") +
                  property("Antwort false") + property("Skala " + name(first + 1)) +
                  ")answer(lfd:2 Skala:1 " + property("Dauer Antwort 12") + property("Anz Whlg 1") +
                  property("Antwort true") + property("Skala " + name(first)) +
                  ")))lesson(properties(" + property("Tonskala " + second) + ")answers())))");
}

}  // namespace
}  // namespace worksheets
