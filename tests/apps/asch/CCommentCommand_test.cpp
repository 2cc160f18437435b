#include "apps/asch/SchemeCommandSupport.h"

using aschtest::run;

namespace {

class CommentCommand : public aschtest::SchemeCommand {
protected:
    CommentCommand() : SchemeCommand("comment") {}
};

}  // namespace

TEST_F(CommentCommand, PlacesACopyAtEachPointAndTheOnesOnASheetBelongToIt) {
    ASSERT_EQ(Run("draw", "--definition 'A4 portrait' --at 0,0").code, 0);
    const auto placed = Run("comment", "--text 'Zasun DN100 zatvoren' --at 50,50 --at 100,200 --at 900,900");
    ASSERT_EQ(placed.code, 0) << placed.err;
    EXPECT_EQ(placed.out, "placed 3 comment(s) into " + folder / "schemes.dxf" + "\n");
    EXPECT_NE(List().out.find("01CMMNT 2"), std::string::npos) << List().out;
    EXPECT_NE(run("info " + drawing).out.find("MTEXT 3"), std::string::npos) << run("info " + drawing).out;

    EXPECT_EQ(Run("comment", "--at 1,1").err, "asch comment: no text given (--text T)\n");
    EXPECT_EQ(Run("comment", "--text T").err, "asch comment: no point given (--at X,Y)\n");
    EXPECT_EQ(Run("comment", "--text T --at 1").code, 1);
}
