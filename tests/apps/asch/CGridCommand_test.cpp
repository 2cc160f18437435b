#include "apps/asch/SchemeCommandSupport.h"

using aschtest::run;

namespace {

class GridCommand : public aschtest::SchemeCommand {
protected:
    GridCommand() : SchemeCommand("grid") {}
};

}  // namespace

TEST_F(GridCommand, DrawsOneSheetPerNodeOrRowsTimesColumnsWithoutNodes) {
    const auto all = Run("grid", "--definition 'A4 portrait' --all-nodes --rows 2 --columns 5 --at 0,0");
    ASSERT_EQ(all.code, 0) << all.err;
    EXPECT_EQ(all.out, "drew 13 scheme sheet(s) into " + folder / "schemes.dxf" + "\n");
    const auto some = Run("grid", "--definition 'A3 landscape' --nodes Č-1,H-1 --columns 2 --gap-x 0 --at 0,-400");
    ASSERT_EQ(some.code, 0) << some.err;
    EXPECT_NE(some.out.find("drew 2 "), std::string::npos);
    const auto empty = Run("grid", "--definition 'A4 portrait' --rows 2 --columns 2 --at 2000,0");
    ASSERT_EQ(empty.code, 0) << empty.err;

    const auto listed = List();
    EXPECT_NE(listed.out.find("19 scheme(s)"), std::string::npos) << listed.out;
    EXPECT_EQ(Count(listed.out, "node -"), 4);
    // 13 nodes in rows of 5: the third row, above the other two, starts at y = 2 x (297 + 10).
    EXPECT_NE(listed.out.find("base point 0, 614, 0  size 210 x 297"), std::string::npos) << listed.out;
    EXPECT_NE(listed.out.find("base point 420, -400, 0  size 420 x 297"), std::string::npos) << listed.out;
}

TEST_F(GridCommand, WithoutABasePointNothingIsDrawnAndBadArgumentsAreRefused) {
    const auto cancelled = Run("grid", "--definition 'A4 portrait' --rows 2 --columns 2");
    EXPECT_EQ(cancelled.code, 1);
    EXPECT_EQ(cancelled.err, "asch grid: cancelled: no base point was picked (--at X,Y); nothing was drawn\n");
    EXPECT_FALSE(std::filesystem::exists(folder / "schemes.dxf"));
    EXPECT_EQ(Run("grid", "--definition 'A4 portrait' --all-nodes --nodes H-1 --at 0,0").code, 1);
    EXPECT_EQ(Run("grid", "--definition 'A4 portrait' --rows 0 --at 0,0").code, 1);
    EXPECT_EQ(Run("grid", "--definition 'A4 portrait' --nodes H-1,Nobody --at 0,0").err,
              "asch grid: system \"Vodovod Demo\" has no node \"Nobody\"\n");
}
