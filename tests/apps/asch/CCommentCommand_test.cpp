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
    EXPECT_EQ(placed.out, "placed 3 comment(s) into " + folder / "schemes.dxf" + "\n") << placed.err;
    EXPECT_NE(List().out.find("01CMMNT 2"), std::string::npos);
    EXPECT_NE(run("info " + drawing).out.find("MTEXT 3"), std::string::npos);
    EXPECT_EQ(Run("comment", "--at 1,1").err, "asch comment: no text given (--text T)\n");
}
