#include <gtest/gtest.h>

#include <pugixml.hpp>

#include "apps/asch/AschTestSupport.h"
#include "apps/asch/SchemeCommandSupport.h"

using aschtest::run;

TEST(CManholeCommand, DrawsADemoManholeAndRefusesAJunction) {
    const aschtest::TempFolder folder("manhole");
    const std::string workspace = "'" + folder / "ws" + "'";
    ASSERT_EQ(run("workspace init " + workspace + " --demo").code, 0);

    const auto drawn = run("manhole " + workspace + " RO-3 --system 2 -o '" + folder / "ro3.svg" + "'");
    ASSERT_EQ(drawn.code, 0) << drawn.err;
    pugi::xml_document svg;
    ASSERT_TRUE(svg.load_file((folder / "ro3.svg").c_str()));
    const std::string text = aschtest::readAll(folder / "ro3.svg");
    for (const char* label : {"Manhole side view 'RO-3'", "Manhole top view 'RO-3'", "K-03 DN300", "+120.40", "+117.80"})
        EXPECT_NE(text.find(label), std::string::npos) << label;

    const auto dxf = run("manhole " + workspace + " Z-3 -o '" + folder / "z3.dxf" + "'");
    ASSERT_EQ(dxf.code, 0) << dxf.err;
    EXPECT_EQ(run("info '" + folder / "z3.dxf" + "'").code, 0);

    const auto junction = run("manhole " + workspace + " Č-1 -o '" + folder / "c1.svg" + "'");
    EXPECT_EQ(junction.code, 1);
    EXPECT_NE(junction.err.find("The node has no manhole to draw: 'Č-1'"), std::string::npos) << junction.err;
    EXPECT_FALSE(std::filesystem::exists(folder / "c1.svg"));
    EXPECT_NE(aschtest::readAll(folder / "ws/logs/messages.log").find("'Č-1'"), std::string::npos);
    EXPECT_EQ(run("manhole " + workspace + " X-9 -o '" + folder / "x.svg" + "'").code, 1);
}

namespace {

class ManholeOnScheme : public aschtest::SchemeCommand {
protected:
    ManholeOnScheme() : SchemeCommand("manhole_scheme") {}
};

}  // namespace

TEST_F(ManholeOnScheme, DrawsTheViewsOfTheSheetsNodeOnTheSheet) {
    const auto chamber = Run("draw", "--definition 'A3 landscape' --node Z-3 --at 0,0");
    ASSERT_EQ(chamber.code, 0) << chamber.err;
    const std::string id = SchemeId(chamber);
    const auto side = Run("manhole", "--scheme " + id + " --side --at 100,150");
    ASSERT_EQ(side.code, 0) << side.err;
    EXPECT_EQ(side.out, "drew the manhole side view into " + folder / "schemes.dxf" + "\n");
    ASSERT_EQ(Run("manhole", "--scheme " + id + " --top --at 300,150").code, 0);
    const auto listed = List();
    EXPECT_NE(listed.out.find("05MANH_S "), std::string::npos) << listed.out;
    EXPECT_NE(listed.out.find("05MANH_T "), std::string::npos) << listed.out;

    const auto junction = Run("draw", "--definition 'A4 portrait' --node Č-1 --at 500,0");
    const auto refused = Run("manhole", "--scheme " + SchemeId(junction) + " --top --at 600,100");
    EXPECT_EQ(refused.code, 1);
    EXPECT_EQ(refused.err, "asch manhole: The node has no manhole to draw: 'Č-1'\n");
    EXPECT_EQ(Run("manhole", "--scheme " + id + " --side --top --at 1,1").err,
              "asch manhole: give either --side or --top\n");
    EXPECT_EQ(Run("manhole", "--scheme {NONE} --side --at 1,1").code, 1);
    EXPECT_EQ(run("manhole").err, "asch manhole: no folder given\n");
}
