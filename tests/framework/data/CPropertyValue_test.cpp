#include "framework/data/CPropertyValue.h"

#include <gtest/gtest.h>

using XimoGis::Data::CPropertyValue;

TEST(CPropertyValue, NullDiffersFromEmptyText) {
    EXPECT_TRUE(CPropertyValue().IsNull());
    EXPECT_TRUE(CPropertyValue(static_cast<const wchar_t*>(nullptr)).IsNull());
    EXPECT_NE(CPropertyValue(), CPropertyValue(L""));
    double d = 1.5;
    EXPECT_FALSE(CPropertyValue().ToDouble(d));
    EXPECT_EQ(d, 1.5);
}

TEST(CPropertyValue, NumbersReadBackExactlyAndGarbageIsRefused) {
    for (double v : {0.1, 1.0 / 3.0, -2.5e-300, 1.7976931348623157e308}) {
        double back = 0.0;
        ASSERT_TRUE(CPropertyValue(v).ToDouble(back));
        EXPECT_EQ(back, v);
    }
    EXPECT_EQ(CPropertyValue(210.0).GetText(), L"210");
    EXPECT_EQ(CPropertyValue(-8L).GetText(), L"-8");
    int i = 0;
    EXPECT_TRUE(CPropertyValue(L" +2.7 ").ToInt(i));  // cut towards zero
    EXPECT_EQ(i, 2);
    long l = 0;
    EXPECT_TRUE(CPropertyValue(L"1e12").ToLong(l));
    EXPECT_EQ(l, 1000000000000L);
    i = 5;
    for (const wchar_t* bad : {L"", L"Continuous", L"1.2.3", L"12abc", L"+-1", L"1,5", L"\uFF11", L"1e12", L"nan"})
        EXPECT_FALSE(CPropertyValue(bad).ToInt(i)) << bad;
    EXPECT_EQ(i, 5);
}
