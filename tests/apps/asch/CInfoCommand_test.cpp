#include <gtest/gtest.h>

#include "apps/asch/AschTestSupport.h"

using aschtest::run;

namespace {
bool hasLine(const std::string& text, const std::string& line) { return text.find("\n" + line + "\n") != std::string::npos; }
}  // namespace

TEST(CInfoCommand, TellsWhatTheDemoDrawingHolds) {
    const aschtest::TempFolder folder("info");
    ASSERT_EQ(run("demo -o '" + folder.path().string() + "'").code, 0);
    const auto result = run("info '" + folder / "demo.dxf" + "'");
    ASSERT_EQ(result.code, 0) << result.err;
    const std::string& out = result.out;
    EXPECT_EQ(out.rfind("drawing: " + folder / "demo.dxf" + "\n", 0), 0u);
    EXPECT_TRUE(hasLine(out, "model space: 24 entities")) << out;
    for (const char* line : {"  INSERT 4", "  LWPOLYLINE 5", "  TEXT 7", "  MTEXT 1", "  ARC 1", "  POINT 2"})
        EXPECT_TRUE(hasLine(out, line)) << line;
    EXPECT_TRUE(hasLine(out, "blocks: 2"));
    EXPECT_TRUE(hasLine(out, "  VALVE: 8 entities, 4 references"));
    EXPECT_TRUE(hasLine(out, "    ATTDEF 2"));
    EXPECT_TRUE(hasLine(out, "  FLANGE: 1 entity, 2 references"));
    EXPECT_TRUE(hasLine(out, "  AXES: colour 1, linetype CENTER"));
    EXPECT_TRUE(hasLine(out, "  HIDDEN: colour 8, linetype HIDDEN"));
    EXPECT_TRUE(hasLine(out, "  XIMO_DEMO"));
    EXPECT_TRUE(hasLine(out, "extended data: 1 application"));
    EXPECT_TRUE(hasLine(out, "  XIMO_DEMO: 4 objects"));
}

TEST(CInfoCommand, NamesAMissingOrWrongFile) {
    const aschtest::TempFolder folder("info_bad");
    const auto missing = run("info '" + folder / "none.dxf" + "'");
    EXPECT_EQ(missing.code, 1);
    EXPECT_NE(missing.err.find("asch info: '" + folder / "none.dxf" + "' does not exist"), std::string::npos);
    const auto directory = run("info '" + folder.path().string() + "'");
    EXPECT_EQ(directory.code, 1);
    EXPECT_NE(directory.err.find("is a folder"), std::string::npos);
    std::ofstream(folder / "junk.dxf") << "this is not a drawing\n";
    const auto junk = run("info '" + folder / "junk.dxf" + "'");
    EXPECT_EQ(junk.code, 1);
    EXPECT_NE(junk.err.find("junk.dxf"), std::string::npos);
    EXPECT_TRUE(junk.out.empty());
    EXPECT_EQ(run("info").code, 2);
    EXPECT_EQ(run("info a.dxf b.dxf").code, 2);
}
