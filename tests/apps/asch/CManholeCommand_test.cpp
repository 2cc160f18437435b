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
    const std::string chamber = SchemeId(Run("draw", "--definition 'A3 landscape' --node Z-3 --at 0,0"));
    const auto side = Run("manhole", "--scheme " + chamber + " --side --at 100,150");
    EXPECT_EQ(side.out, "drew the manhole side view into " + folder / "schemes.dxf" + "\n") << side.err;
    ASSERT_EQ(Run("manhole", "--scheme " + chamber + " --top --at 300,150").code, 0);
    const auto listed = List().out;
    EXPECT_NE(listed.find("05MANH_S "), std::string::npos) << listed;
    EXPECT_NE(listed.find("05MANH_T "), std::string::npos) << listed;

    const std::string junction = SchemeId(Run("draw", "--definition 'A4 portrait' --node Č-1 --at 500,0"));
    EXPECT_EQ(Run("manhole", "--scheme " + junction + " --top --at 600,100").err,
              "asch manhole: The node has no manhole to draw: 'Č-1'\n");
    EXPECT_EQ(Run("manhole", "--scheme " + chamber + " --side --top --at 1,1").err,
              "asch manhole: give either --side or --top\n");
    EXPECT_EQ(run("manhole").err, "asch manhole: no folder given\n");
}
