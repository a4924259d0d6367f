#include "melvora/options.h"

#include <gtest/gtest.h>

namespace melvora {
namespace {

TEST(Options, TakeWhatTheHelpNames) {
    const auto options = parseOptions({"melvora", "--start", "zepha9", "--user=anna", "--language",
                                       "Español", "--data", "/tmp/x y", "--teacher"});
    EXPECT_EQ(options.module, "zepha9");
    EXPECT_EQ(options.user, "anna");
    EXPECT_EQ(options.language, "Español");
    EXPECT_EQ(options.data, "/tmp/x y");
    EXPECT_TRUE(options.teacher);
    for (const char* name : {"--start", "--user", "--language", "--data", "--teacher"})
        EXPECT_TRUE(helpText().contains(name)) << name;
}

}  // namespace
}  // namespace melvora
