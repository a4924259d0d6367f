#include "sim/traced_run.h"
#include "sim/usage_error.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace sim::test {

namespace {

TEST(CommandLine, WhatCannotBeDoneIsToldByName) {
    struct Row {
        const char* line;
        const char* told;
    };
    for (const Row& row : {
             Row{"--set tempo=3", "tempo"},
             Row{"--set skal_typ", "field=value"},
             Row{"--set skal_typ=7", "0..6"},
             Row{"--set zufallsNr=99999999999999999999", "zufallsNr"},
             Row{"--set ska_ausw=1", "einzel_wahl"},
             Row{"--set einzel_wahl=6 --set skal_typ=4", "1..5"},
             Row{"--set einzel_wahl=1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1", "15"},
             Row{"--set FrquMinAkt=72 --set oktAnz=3", "oktAnz"},
             Row{"--form einstellung1", "einstellung1"},
             Row{"--learner random:1.5", "0..1"},
             Row{"--fast", "--fast"},
             Row{"", "--tasks"},
         }) {
        SCOPED_TRACE(row.line);
        try {
            const Options given = options(row.line);
            const Simulation simulation(given);
            ADD_FAILURE() << "was taken";
        } catch (const UsageError& error) {
            EXPECT_NE(std::string(error.what()).find(row.told), std::string::npos) << error.what();
        }
    }
}

/// Runs the program. @return its exit status.
int program(const std::string& arguments) {
    const int status = std::system((ZEPHA9_SIM " " + arguments + " > out 2> err").c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::string contents(const char* file) {
    std::ifstream in(file);
    return {std::istreambuf_iterator<char>(in), {}};
}

TEST(CommandLine, TheProgramTellsItsStatusAndWritesItsFiles) {
    const TempFolder folder;
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());

    EXPECT_EQ(program("--help"), 0);
    EXPECT_NE(contents("out").find("--learner"), std::string::npos);
    EXPECT_EQ(program("--set nothing=1"), 2);
    EXPECT_NE(contents("err").find("nothing"), std::string::npos);
    EXPECT_EQ(program("--tasks 1 --trace /nowhere/trace"), 2);
    EXPECT_EQ(program("--set einzel_wahl=2 --set final=1 --tasks 1"), 1);

    EXPECT_EQ(program("--set uebungsmodus=1 --trace trace --record record.xml"), 0);
    EXPECT_NE(contents("out").find("goal"), std::string::npos);
    const std::string trace = contents("trace");
    EXPECT_NE(contents("record.xml").find("<lesson>"), std::string::npos);
    EXPECT_EQ(program("--set uebungsmodus=1 --trace -"), 0);
    EXPECT_EQ(contents("out"), trace);
    EXPECT_NE(contents("err").find("goal"), std::string::npos);

    std::filesystem::current_path(before);
}

}  // namespace

}  // namespace sim::test
