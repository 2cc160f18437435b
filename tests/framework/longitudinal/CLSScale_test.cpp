#include "framework/longitudinal/CLSScale.h"

#include <gtest/gtest.h>

using XimoGis::Longitudinal::CLSScale;

TEST(CLSScale, TextFormRoundTripsExactly) {
    EXPECT_EQ(CLSScale(0.1, 0.1, 0).Serialize(), L"0.1;0.1;0");
    for (const CLSScale& scale : {CLSScale(0.1, 0.1, 0), CLSScale(1.0 / 3.0, 0.002, 2), CLSScale(-1e-9, 250.0, -1)}) {
        CLSScale back;
        ASSERT_TRUE(back.Deserialize(scale.Serialize().c_str())) << scale.Serialize();
        EXPECT_EQ(back, scale);
    }
    CLSScale spaced;
    ASSERT_TRUE(spaced.Deserialize(L" 0.5 ; 0.25 ; 3 "));
    EXPECT_EQ(spaced, CLSScale(0.5, 0.25, 3));
}

TEST(CLSScale, SettersChangeOneFactor) {
    CLSScale scale;
    EXPECT_EQ(scale, CLSScale(1.0, 1.0, 0));
    scale.SetScaleX(0.02);
    scale.SetScaleY(0.05);
    scale.SetTargetUnit(4);
    EXPECT_EQ(scale.x(), 0.02);
    EXPECT_EQ(scale.y(), 0.05);
    EXPECT_EQ(scale.GetTargetUnit(), 4);
}

TEST(CLSScale, GarbageIsRefusedWithoutChange) {
    const CLSScale original(0.1, 0.2, 1);
    for (const wchar_t* bad : {L"", L"0.1;0.2", L"0.1;0.2;1;4", L"1:100;1:100;m", L"0.1;x;1", L"0.1;0.2;1.5", L"inf;1;0",
                               L"nan;1;0", L";;", L"0,1;0,2;1"}) {
        CLSScale scale = original;
        EXPECT_FALSE(scale.Deserialize(bad)) << bad;
        EXPECT_EQ(scale, original) << bad;
    }
    CLSScale scale = original;
    EXPECT_FALSE(scale.Deserialize(nullptr));
    EXPECT_EQ(scale, original);
}
