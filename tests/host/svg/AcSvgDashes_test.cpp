#include "host/svg/AcSvgDashes.h"

#include <gtest/gtest.h>

TEST(AcSvgDashes, AlternatesDashesAndGapsStartingWithADash) {
    const AcSvgDashes dashed = acsvgDashes({12.7, -6.35}, 2.0);
    EXPECT_EQ(dashed.lengths, (std::vector<double>{25.4, 12.7}));
    EXPECT_EQ(dashed.offset, 0.0);
    // Dots are dashes of no length.
    EXPECT_EQ(acsvgDashes({12.7, -6.35, 0.0, -6.35}, 1.0).lengths, (std::vector<double>{12.7, 6.35, 0.0, 6.35}));
    // Runs of one kind merge.
    EXPECT_EQ(acsvgDashes({5, 5, -2, -3}, 1.0).lengths, (std::vector<double>{10, 5}));
}

TEST(AcSvgDashes, ShiftsPatternsThatStartWithAGapOrEndWithADash) {
    // gap 2, dash 5: drawn as dash 5, gap 2 entered 5 along, so the line starts in the gap.
    const AcSvgDashes gapFirst = acsvgDashes({-2, 5}, 1.0);
    EXPECT_EQ(gapFirst.lengths, (std::vector<double>{5, 2}));
    EXPECT_DOUBLE_EQ(gapFirst.offset, 5.0);
    // dash 4, gap 1, dash 3: the two dashes meet across the repeat.
    const AcSvgDashes dashLast = acsvgDashes({4, -1, 3}, 1.0);
    EXPECT_EQ(dashLast.lengths, (std::vector<double>{7, 1}));
    EXPECT_DOUBLE_EQ(dashLast.offset, 3.0);
}

TEST(AcSvgDashes, PatternsWithoutGapsAreSolid) {
    EXPECT_TRUE(acsvgDashes({}, 1.0).isSolid());
    EXPECT_TRUE(acsvgDashes({10.0}, 1.0).isSolid());
    EXPECT_TRUE(acsvgDashes({10.0, -0.0}, 1.0).isSolid());
}
