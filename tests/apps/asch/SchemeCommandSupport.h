#pragma once
// A demo workspace and a drawing in a fresh folder, for the commands that draw schemes.

#include <gtest/gtest.h>

#include "apps/asch/AschTestSupport.h"

#include <regex>
#include <string>

namespace aschtest {

class SchemeCommand : public ::testing::Test {
protected:
    explicit SchemeCommand(const std::string& name) : folder(name) {}
    void SetUp() override { ASSERT_EQ(run("workspace init " + workspace + " --demo").code, 0); }

    // "asch COMMAND --workspace W --drawing D OPTIONS".
    Result Run(const std::string& command, const std::string& options) const {
        return run(command + " --workspace " + workspace + " --drawing " + drawing + " " + options);
    }
    Result List() const { return run("list " + drawing + " --workspace " + workspace); }
    // The scheme id that "asch draw" tells.
    static std::string SchemeId(const Result& drawn) {
        std::smatch match;
        return std::regex_search(drawn.out, match, std::regex(R"(drew scheme (\{[0-9A-F-]+\}))")) ? match[1].str()
                                                                                                    : "";
    }

    TempFolder folder;
    std::string workspace = "'" + folder / "ws" + "'";
    std::string drawing = "'" + folder / "schemes.dxf" + "'";
};

}  // namespace aschtest
