#include "apps/asch/SchemeCommandSupport.h"

namespace {

class GridCommand : public aschtest::SchemeCommand {
protected:
    GridCommand() : SchemeCommand("grid") {}
};

}  // namespace

TEST_F(GridCommand, DrawsOneSheetPerNodeOrRowsTimesColumnsWithoutNodesAndNothingWithoutABasePoint) {
    EXPECT_EQ(Run("grid", "--definition 'A4 portrait' --rows 2 --columns 2").err,
              "asch grid: cancelled: no base point was picked (--at X,Y); nothing was drawn\n");
    EXPECT_EQ(Run("grid", "--definition 'A4 portrait' --all-nodes --nodes H-1 --at 0,0").code, 1);
    EXPECT_EQ(Run("grid", "--definition 'A4 portrait' --nodes H-1,Nobody --at 0,0").err,
              "asch grid: system \"Vodovod Demo\" has no node \"Nobody\"\n");
    EXPECT_FALSE(std::filesystem::exists(folder / "schemes.dxf"));

    const auto all = Run("grid", "--definition 'A4 portrait' --all-nodes --rows 2 --columns 5 --at 0,0");
    EXPECT_EQ(all.out, "drew 13 scheme sheet(s) into " + folder / "schemes.dxf" + "\n") << all.err;
    EXPECT_EQ(Run("grid", "--definition 'A3 landscape' --nodes Č-1,H-1 --columns 2 --gap-x 0 --at 0,-400").code, 0);
    EXPECT_EQ(Run("grid", "--definition 'A4 portrait' --rows 2 --columns 2 --at 2000,0").code, 0);
    const auto listed = List().out;
    EXPECT_NE(listed.find("19 scheme(s)"), std::string::npos) << listed;
    // 13 nodes in rows of 5: the third row, above the others, starts at y = 2 x (297 + 10).
    EXPECT_NE(listed.find("base point 0, 614, 0  size 210 x 297"), std::string::npos);
    EXPECT_NE(listed.find("base point 420, -400, 0  size 420 x 297"), std::string::npos);
    EXPECT_NE(listed.find("base point 2220, 307, 0  size 210 x 297\n  entities: 00FRAME 4\n"), std::string::npos);
}
