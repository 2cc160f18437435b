#include <gtest/gtest.h>

#include <pugixml.hpp>

#include "apps/asch/AschTestSupport.h"

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
