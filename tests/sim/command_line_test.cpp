#include "sim/traced_run.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace sim::test {

namespace {

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
    const rehearsal::TempFolder folder;
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());

    EXPECT_EQ(program("--help"), 0);
    EXPECT_NE(contents("out").find("--learner"), std::string::npos);
    for (const auto& [arguments, told] : {
             std::pair{"--set tempo=3", "tempo"},
             {"--set skal_typ", "field=value"},
             {"--set skal_typ=7", "0..6"},
             {"--set zufallsNr=99999999999999999999", "zufallsNr"},
             {"--set ska_ausw=1", "einzel_wahl"},
             {"--set einzel_wahl=6 --set skal_typ=4", "1..5"},
             {"--set einzel_wahl=1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1", "15"},
             {"--set FrquMinAkt=72 --set oktAnz=3", "oktAnz"},
             {"--form einstellung1", "einstellung1"},
             {"--learner random:1.5", "0..1"},
             {"--fast", "--fast"},
             {"", "--tasks"},
             {"--tasks 1 --trace /nowhere/trace", "/nowhere/trace"},
             {"--bare --tasks 1 --trace -", "--trace"},
             {"--bare --tasks 1 --record r", "--record"},
             {"--bare --tasks 1 --through-setup", "--through-setup"},
             {"--bare", "--tasks"},
         }) {
        EXPECT_EQ(program(arguments), 2) << arguments;
        EXPECT_NE(contents("err").find(told), std::string::npos) << contents("err");
    }
    EXPECT_EQ(program("--set einzel_wahl=2 --set final=1 --tasks 1"), 1);

    EXPECT_EQ(program("--bare --tasks 100 --runs 3"), 0);
    EXPECT_NE(contents("out").find("left 3"), std::string::npos);
    EXPECT_EQ(contents("out").find("time"), std::string::npos) << "it is not known";
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
