#include "framework/data/CNumberText.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <limits>

using XimoGis::Data::CNumberText;

TEST(CNumberText, DoublesReadBackExactly) {
    for (double v : {0.1, 1.0 / 3.0, -2.5e-300, DBL_MAX, 210.0, -0.0, 12345678.9}) {
        double back = 0.0;
        ASSERT_TRUE(CNumberText::ParseDouble(CNumberText::FormatDouble(v), back)) << v;
        EXPECT_EQ(std::signbit(back), std::signbit(v));
        EXPECT_EQ(back, v);
    }
    EXPECT_EQ(CNumberText::FormatDouble(0.1), L"0.1");
    EXPECT_EQ(CNumberText::FormatDouble(210.0), L"210");
    double inf = 0.0;
    ASSERT_TRUE(CNumberText::ParseDouble(CNumberText::FormatDouble(INFINITY), inf));
    EXPECT_TRUE(std::isinf(inf));
}

TEST(CNumberText, AcceptsOnlyWholeNumbers) {
    double d = 7.0;
    EXPECT_TRUE(CNumberText::ParseDouble(L"  +2.5 ", d));
    EXPECT_EQ(d, 2.5);
    for (const wchar_t* bad : {L"", L"  ", L"1.2.3", L"12abc", L"+-1", L"1,5", L"\uFF11"}) {
        d = 7.0;
        EXPECT_FALSE(CNumberText::ParseDouble(bad, d)) << bad;
        EXPECT_EQ(d, 7.0);
    }
    long l = 0;
    EXPECT_TRUE(CNumberText::ParseLong(L"-42", l));
    EXPECT_EQ(l, -42);
    EXPECT_FALSE(CNumberText::ParseLong(L"4.2", l));
    int i = 3;
    EXPECT_FALSE(CNumberText::ParseInt(std::to_wstring(std::numeric_limits<long>::max()), i));
    EXPECT_EQ(i, 3);
}
