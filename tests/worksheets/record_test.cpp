#include "support/desk.h"

#include <gtest/gtest.h>
#include <pugixml.hpp>

namespace worksheets {
namespace {

using support::Practice;

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
    Practice desk({.seed = 2});
    desk.choose({1, 2, 3});
    desk.z.richtung = 0;
    desk.z.einst_liste = {"4", "Tempo", "60", "Tonraum", "2"};
    desk.run();
    const auto name = [&](int scale) { return desk.programm.katalog.skal_name[0][scale % 3]; };

    desk.next();
    const int first = desk.task().skala_nr;
    desk.wait(2300);
    desk.answer((first + 1) % 3);
    desk.wait(650);
    desk.click("wieder");
    desk.wait(desk.taskLength() + 500);
    desk.answerRight();
    desk.next();
    const std::string second = name(desk.task().skala_nr);
    const std::string file = desk.drill.xml.datei();
    desk.click("zurueck");

    pugi::xml_document document;
    ASSERT_TRUE(document.load_file(file.c_str()));
    const auto property = [](const std::string& text) { return "property(" + text + " )"; };
    EXPECT_EQ(told(document.child("exercise")),
              "exercise(properties(programm:ZEPHA9 ukey:u7 exercise:W154 timestamp:" +
                  desk.loop.now().dateAndTime() +
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
