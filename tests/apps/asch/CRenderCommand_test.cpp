#include <gtest/gtest.h>

#include <pugixml.hpp>

#include "apps/asch/AschTestSupport.h"
#include "apps/asch/SchemeCommandSupport.h"

using aschtest::run;

TEST(CRenderCommand, DrawsTheDrawingOrAWindowOfIt) {
    const aschtest::TempFolder folder("render");
    ASSERT_EQ(run("demo -o '" + folder.path().string() + "'").code, 0);
    const std::string drawing = folder / "demo.dxf";
    const auto whole = run("render '" + drawing + "' -o '" + folder / "whole.svg" + "'");
    ASSERT_EQ(whole.code, 0) << whole.err;
    pugi::xml_document svg;
    ASSERT_TRUE(svg.load_file((folder / "whole.svg").c_str()));
    // The picture of the saved drawing shows what the demo drew before saving.
    pugi::xml_document before;
    ASSERT_TRUE(before.load_file((folder / "demo.svg").c_str()));
    EXPECT_EQ(svg.select_nodes("//*[@class]").size(), before.select_nodes("//*[@class]").size());

    // The valve at (115, 120) alone, negative corners given with "=".
    const auto window = run("render '" + drawing + "' -o '" + folder / "valve.svg" + "' --window=95,100,135,140");
    ASSERT_EQ(window.code, 0) << window.err;
    ASSERT_TRUE(svg.load_file((folder / "valve.svg").c_str()));
    EXPECT_STREQ(svg.child("svg").attribute("viewBox").value(), "0 0 1600 1600");
    EXPECT_TRUE(svg.select_node("//clipPath"));
    EXPECT_LT(svg.select_nodes("//g[@data-block='VALVE']").size(), 4u);
}

TEST(CRenderCommand, RejectsBadArgumentsAndNamesFiles) {
    const aschtest::TempFolder folder("render_bad");
    const auto missing = run("render '" + folder / "none.dxf" + "' -o '" + folder / "x.svg" + "'");
    EXPECT_EQ(missing.code, 1);
    EXPECT_NE(missing.err.find("asch render: '" + folder / "none.dxf" + "' does not exist"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(folder / "x.svg"));
    const auto noOutput = run("render a.dxf");
    EXPECT_EQ(noOutput.code, 2);
    EXPECT_NE(noOutput.err.find("no output given"), std::string::npos);
    const auto badWindow = run("render a.dxf -o b.svg --window 1,2,3");
    EXPECT_EQ(badWindow.code, 2);
    EXPECT_NE(badWindow.err.find("--window wants four numbers X1,Y1,X2,Y2, not '1,2,3'"), std::string::npos);
    const auto flatWindow = run("render a.dxf -o b.svg --window 1,2,1,5");
    EXPECT_EQ(flatWindow.code, 2);
    EXPECT_NE(flatWindow.err.find("no width or no height"), std::string::npos);
}

namespace {

class RenderScheme : public aschtest::SchemeCommand {
protected:
    RenderScheme() : SchemeCommand("render_scheme") {}
};

}  // namespace

TEST_F(RenderScheme, DrawsOneSheetOfAWorkspaceDrawing) {
    ASSERT_EQ(Run("draw", "--definition 'A4 portrait' --at 0,0").code, 0);
    const std::string right = SchemeId(Run("draw", "--definition 'A3 landscape' --at 300,0"));
    const auto rendered = run("render " + drawing + " -o '" + folder / "right.svg" + "' --scheme " + right);
    ASSERT_EQ(rendered.code, 0) << rendered.err;
    pugi::xml_document svg;
    ASSERT_TRUE(svg.load_file((folder / "right.svg").c_str()));
    // Clipped to the sheet's rectangle, as wide as an A3 sheet against its height.
    EXPECT_TRUE(svg.select_node("//clipPath"));
    const auto size = svg.child("svg");
    EXPECT_NEAR(size.attribute("width").as_double() / size.attribute("height").as_double(), 420.0 / 297.0, 0.05);
    EXPECT_EQ(run("render " + drawing + " -o x.svg --scheme {NONE}").err,
              "asch render: '" + folder / "schemes.dxf" + "' has no scheme sheet {NONE}\n");
}
