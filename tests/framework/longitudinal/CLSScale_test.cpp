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
    CLSScale scale;
    ASSERT_TRUE(scale.Deserialize(L" 0.5 ; 0.25 ; 3 "));
    scale.SetScaleY(0.05);
    EXPECT_EQ(scale, CLSScale(0.5, 0.05, 3));
    EXPECT_EQ(scale.x(), 0.5);
}

TEST(CLSScale, GarbageIsRefusedWithoutChange) {
    const CLSScale original(0.1, 0.2, 1);
    for (const wchar_t* bad : {L"", L"0.1;0.2", L"0.1;0.2;1;4", L"1:100;1:100;m", L"0.1;x;1", L"0.1;0.2;1.5", L"inf;1;0",
                               L";;", L"0,1;0,2;1", static_cast<const wchar_t*>(nullptr)}) {
        CLSScale scale = original;
        EXPECT_FALSE(scale.Deserialize(bad));
        EXPECT_EQ(scale, original);
    }
}
