#include "framework/data/CPropertyValue.h"

#include <gtest/gtest.h>

using XimoGis::Data::CPropertyValue;

TEST(CPropertyValue, NullDiffersFromEmptyText) {
    const CPropertyValue null;
    const CPropertyValue empty(L"");
    EXPECT_TRUE(null.IsNull());
    EXPECT_FALSE(empty.IsNull());
    EXPECT_NE(null, empty);
    EXPECT_EQ(null.GetText(), L"");
    EXPECT_TRUE(CPropertyValue(static_cast<const wchar_t*>(nullptr)).IsNull());
    double d = 1.5;
    EXPECT_FALSE(null.ToDouble(d));
    EXPECT_EQ(d, 1.5);
}

TEST(CPropertyValue, TypedValuesConvert) {
    EXPECT_EQ(CPropertyValue(7).GetText(), L"7");
    EXPECT_EQ(CPropertyValue(-8L).GetText(), L"-8");
    EXPECT_EQ(CPropertyValue(0.25).GetText(), L"0.25");
    double d = 0.0;
    EXPECT_TRUE(CPropertyValue(0.1).ToDouble(d));
    EXPECT_EQ(d, 0.1);
    int i = 0;
    EXPECT_TRUE(CPropertyValue(L"2.7").ToInt(i));
    EXPECT_EQ(i, 2);
    EXPECT_TRUE(CPropertyValue(L"-2.7").ToInt(i));
    EXPECT_EQ(i, -2);
    i = 5;
    EXPECT_FALSE(CPropertyValue(L"Continuous").ToInt(i));
    EXPECT_FALSE(CPropertyValue(L"1e12").ToInt(i));
    EXPECT_FALSE(CPropertyValue(L"nan").ToInt(i));
    EXPECT_EQ(i, 5);
    long l = 0;
    EXPECT_TRUE(CPropertyValue(L"1e12").ToLong(l));
    EXPECT_EQ(l, 1000000000000L);
}
