#include "support/desk.h"

#include <gtest/gtest.h>

namespace core {
namespace {

struct StartForm : support::Desk {
    form::Form& form() { return Desk::form("grd_einst"); }
    template <class C>
    C& part(const char* name, int index = noIndex) {
        return control<C>("grd_einst", name, index);
    }
    form::Option& type(int i) { return part<form::Option>("ueb_typ", i); }
};

TEST(GrdEinst, OpensTheLinkBeforeAnythingIsShownAlsoWithNobodyAndWithoutWords) {
    for (const bool known : {true, false}) {
        StartForm start;
        start.words.lacking = {"700s"};
        if (!known) start.host.failing = {"LOGIN"};
        if (!known) start.host.language = "Klingon";
        start.programm.forms.load("grd_einst");
        EXPECT_FALSE(start.form().visible());
        EXPECT_EQ(start.host.requests.front(), "APP");
        start.loop.advance(10);
        EXPECT_TRUE(start.form().visible());
        EXPECT_EQ(start.form().caption(), known ? "W491VOIDW287" : "VOIDVOIDVOID");
        EXPECT_EQ(start.programm.zustand.angemeldet, known);
        EXPECT_EQ(start.host.log.back(), "zepha9; uebungs_typ=1");
    }
}

TEST(GrdEinst, FallsBackToTheDetermineTypeAndHandsOverToTheHostAtTheEnd) {
    StartForm start;
    start.programm.forms.load("grd_einst");
    start.loop.advance(10);
    for (const int hidden : {2, 3}) EXPECT_FALSE(start.type(hidden).visible());
    for (const char* branch : {"another", "the same again"}) {
        start.type(4).click();
        EXPECT_EQ(start.programm.zustand.ueb_typ, 4);
        start.part<form::Option>("Theoriewahl", 1).click();
        EXPECT_EQ(start.programm.zustand.theoriewahl, 1);
        EXPECT_EQ(start.programm.zustand.ueb_typ, 1) << branch;
        EXPECT_TRUE(start.type(1).value());
    }
    start.programm.forms.load("einstellung1");
    start.host.requests.clear();
    start.part<form::Button>("cmdEnde").click();
    EXPECT_EQ(start.host.requests, std::vector<std::string>{"MENUE"});
    EXPECT_EQ(start.programm.forms.last(), nullptr);
    start.loop.advance(10000);
    start.programm.host.HostMeldung("late");
    EXPECT_EQ(start.host.requests.size(), 1U) << "the link is closed";
}

}  // namespace
}  // namespace core
