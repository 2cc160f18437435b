#include "apps/asch/SchemeCommandSupport.h"

using aschtest::run;

namespace {

class DeleteCommand : public aschtest::SchemeCommand {
protected:
    DeleteCommand() : SchemeCommand("delete") {}
    std::string Draw(const std::string& definition, const std::string& at) {
        return SchemeId(Run("draw", "--definition '" + definition + "' --at " + at));
    }
};

}  // namespace

TEST_F(DeleteCommand, DeletesOneSheetTheSheetsOfADefinitionOrAll) {
    const std::string first = Draw("A4 portrait", "0,0");
    const std::string second = Draw("A4 portrait", "300,0");
    Draw("A3 landscape", "600,0");
    Draw("A3 landscape", "1100,0");
    EXPECT_EQ(Run("delete", "").err, "asch delete: give one of --scheme ID, --definition ID or --all\n");
    EXPECT_EQ(Run("delete", "--scheme {X}").err, "asch delete: '" + folder / "schemes.dxf" + "' has no scheme {X}\n");

    EXPECT_EQ(Run("delete", "--scheme " + first).out, "deleted 1 scheme sheet(s)\n");
    const auto listed = List().out;
    EXPECT_EQ(listed.find(first), std::string::npos);
    EXPECT_NE(listed.find(second), std::string::npos);
    EXPECT_EQ(Run("delete", "--definition 'A3 landscape'").out, "deleted 2 scheme sheet(s)\n");
    EXPECT_EQ(Run("delete", "--all").out, "deleted 1 scheme sheet(s)\n");
    EXPECT_NE(List().out.find("0 scheme(s)"), std::string::npos);
    EXPECT_NE(run("info " + drawing).out.find("model space: 0 entities"), std::string::npos);
}
