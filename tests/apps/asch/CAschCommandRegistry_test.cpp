// The command line of asch as a whole: help, version, exit codes and messages for bad usage.

#include <gtest/gtest.h>

#include <regex>

#include "apps/asch/AschTestSupport.h"

using aschtest::run;

TEST(CAschCommandRegistry, HelpListsTheCommandsAndVersionNamesTheRelease) {
    const auto help = run("--help");
    EXPECT_EQ(help.code, 0);
    EXPECT_NE(help.out.find("usage: asch"), std::string::npos);
    EXPECT_NE(help.out.find("  demo"), std::string::npos);
    EXPECT_TRUE(help.err.empty());
    const auto version = run("--version");
    EXPECT_EQ(version.code, 0);
    EXPECT_TRUE(std::regex_match(version.out, std::regex("asch [0-9]+\\.[0-9]+\\.[0-9]+\n"))) << version.out;
}

TEST(CAschCommandRegistry, CommandsExplainTheirArguments) {
    const auto help = run("demo --help");
    EXPECT_EQ(help.code, 0);
    EXPECT_NE(help.out.find("usage: asch demo -o OUT_DIR"), std::string::npos);
    EXPECT_NE(help.out.find("--output"), std::string::npos);
}

TEST(CAschCommandRegistry, BadUsageExitsWithTwoAndSaysWhy) {
    const auto none = run("");
    EXPECT_EQ(none.code, 2);
    EXPECT_NE(none.err.find("usage: asch"), std::string::npos);
    EXPECT_TRUE(none.out.empty());

    const auto unknown = run("paint");
    EXPECT_EQ(unknown.code, 2);
    EXPECT_NE(unknown.err.find("asch: unknown command 'paint'"), std::string::npos);

    const auto option = run("--colour");
    EXPECT_EQ(option.code, 2);
    EXPECT_NE(option.err.find("unknown option '--colour'"), std::string::npos);

    const auto missing = run("demo");
    EXPECT_EQ(missing.code, 2);
    EXPECT_NE(missing.err.find("asch demo: no output given (-o PATH)"), std::string::npos);
    EXPECT_NE(missing.err.find("usage: asch demo -o OUT_DIR"), std::string::npos);

    const auto extra = run("demo -o x --bogus");
    EXPECT_EQ(extra.code, 2);
    EXPECT_NE(extra.err.find("bogus"), std::string::npos);
}
