#include "apps/asch/SchemeCommandSupport.h"

using aschtest::run;

namespace {

class DrawCommand : public aschtest::SchemeCommand {
protected:
    DrawCommand() : SchemeCommand("draw") {}
};

}  // namespace

TEST_F(DrawCommand, DrawsSheetsIntoANewDrawingThenIntoTheSavedOneAndRefusesBadArguments) {
    EXPECT_EQ(Run("draw", "--definition Nope --at 0,0").err, "asch draw: system 1 has no scheme definition \"Nope\"\n");
    EXPECT_EQ(Run("draw", "--definition 'A4 portrait' --node X-99 --at 0,0").err,
              "asch draw: system \"Vodovod Demo\" has no node \"X-99\"\n");
    EXPECT_NE(Run("draw", "--definition 'A4 portrait' --at x,2").err.find("--at wants a point X,Y or X,Y,Z"),
              std::string::npos);
    EXPECT_EQ(Run("draw", "--definition 'A4 portrait'").err, "asch draw: no point given (--at X,Y)\n");
    EXPECT_FALSE(std::filesystem::exists(folder / "schemes.dxf"));

    const auto first = Run("draw", "--definition 'A4 portrait' --node Č-1 --at 0,0");
    ASSERT_EQ(first.code, 0) << first.err;
    const auto second = Run("draw", "--definition {D51AD565-5E72-4D54-8779-32AC73B81B4E} --at 300,0");
    ASSERT_EQ(second.code, 0) << second.err;
    const auto listed = List();
    EXPECT_NE(listed.out.find("scheme " + SchemeId(first) + "\n  definition {DA1C3CDF-3739-496B-9C08-BCE3573132B4}"),
              std::string::npos)
        << listed.out;
    EXPECT_NE(listed.out.find("base point 300, 0, 0  size 420 x 297\n  entities: 00FRAME 4"), std::string::npos);
    EXPECT_NE(listed.out.find("2 scheme(s), 0 element(s)"), std::string::npos);
    EXPECT_NE(run("info " + drawing).out.find("VOD_AS_SCHEME_NP"), std::string::npos);
}
