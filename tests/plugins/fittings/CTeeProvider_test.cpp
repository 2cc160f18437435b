#include "fittings/CTeeProvider.h"

#include "fittings/CFittingSketch.h"
#include "plugins/fittings/FittingsTestSupport.h"

#include <gtest/gtest.h>

using namespace XimoGis::AssemblySchemes;
using namespace XimoGis::AssemblySchemes::Fittings;

TEST(CTeeProvider, TheBranchHasTheOutletsFlangeHalfTheRunAway) {
    const auto catalog = Testing::ReadDemoCatalog();
    ASSERT_TRUE(catalog);
    const auto* tee = catalog->GetItem(L"{2761AEBD-F37E-5918-9F42-755B282BA026}");  // T 100x80, L 360
    const auto faces = [tee](enmViewDirection view) {
        CFittingSketch sketch;
        EXPECT_TRUE(CTeeProvider().Sketch(tee, view, sketch));
        std::vector<CFittingSketch::Line> lines;
        for (const auto& line : sketch.GetLines())
            if (line.flangeFace) lines.push_back(line);
        return lines;
    };
    const auto top = faces(eViewTop);
    ASSERT_EQ(top.size(), 3u);
    EXPECT_EQ(top[2].dn, 80);  // a DN 80 flange of 200 at y = 180
    EXPECT_TRUE(top[2].start.isEqualTo({80, 180}) && top[2].end.isEqualTo({280, 180}));
    EXPECT_EQ(faces(eViewFront).size(), 2u);
    const auto left = faces(eViewLeft);
    ASSERT_EQ(left.size(), 1u);
    EXPECT_NEAR(left[0].start.x, -180.0, 1e-9);  // looking along the run, the branch points left
}
