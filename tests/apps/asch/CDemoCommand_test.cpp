#include <gtest/gtest.h>

#include <pugixml.hpp>

#include "apps/asch/AschTestSupport.h"

using aschtest::run;

TEST(CDemoCommand, WritesThePictureOfTheDemoDrawing) {
    const aschtest::TempFolder folder("demo");
    const std::string out = folder / "sheets";  // made when missing
    const auto result = run("demo -o '" + out + "'");
    ASSERT_EQ(result.code, 0) << result.err;
    EXPECT_NE(result.out.find("demo.svg"), std::string::npos);
    EXPECT_NE(result.out.find("demo.dxf"), std::string::npos);
    EXPECT_TRUE(std::filesystem::exists(out + "/demo.dxf"));
    pugi::xml_document svg;
    ASSERT_TRUE(svg.load_file((out + "/demo.svg").c_str()));
    // Four valves, each with a nested flange pair and its visible position attribute.
    EXPECT_EQ(svg.select_nodes("//g[@class='insert' and @data-block='VALVE']").size(), 4u);
    EXPECT_EQ(svg.select_nodes("//g[@data-block='VALVE']/g[@data-block='FLANGE']").size(), 8u);
    EXPECT_EQ(svg.select_nodes("//g[@data-block='VALVE']/text[@class='attribute']").size(), 4u);
    for (const char* kind : {"line", "polyline", "point", "circle", "arc", "text", "mtext"})
        EXPECT_FALSE(svg.select_nodes((std::string("//*[@class='") + kind + "']").c_str()).empty()) << kind;
}

TEST(CDemoCommand, FailsWithOneNamingAFolderItCannotMake) {
    const aschtest::TempFolder folder("demo_blocked");
    const std::string file = folder / "plain_file";
    std::ofstream(file) << "not a folder";
    const auto result = run("demo -o '" + file + "/sub'");
    EXPECT_EQ(result.code, 1);
    EXPECT_NE(result.err.find("asch demo: cannot make the folder '" + file + "/sub'"), std::string::npos);
}
