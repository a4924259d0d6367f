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

TEST(Options, RefuseWhatCannotBeMeant) {
    const QStringList lines[] = {{"melvora", "--sart", "zepha9"},
                                 {"melvora", "--start"},
                                 {"melvora", "--start", "zepha8"},
                                 {"melvora", "a.mvs", "b.mvs"},
                                 {"melvora", "--data", ""},
                                 {"melvora", "--teacher=1"},
                                 {"melvora", ""}};
    for (const QStringList& line : lines) {
        SCOPED_TRACE(line.join(' ').toStdString());
        EXPECT_THROW(parseOptions(line), UsageError);
    }
}

}  // namespace
}  // namespace melvora
