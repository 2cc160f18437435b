#include "framework/data/CDataBox.h"

#include <gtest/gtest.h>

using XimoGis::Data::CDataBox;

TEST(CDataBox, TypesConversionsAndScaling) {
    CDataBox none;
    EXPECT_TRUE(none.IsNull());
    EXPECT_EQ(none.AsString(), L"");
    EXPECT_DOUBLE_EQ(none.AsDouble(-1.0), -1.0);

    CDataBox diameter(150);
    EXPECT_EQ(diameter.GetType(), CDataBox::Type::Integer);
    diameter.ScaleValue(0.001);  // millimetres to metres
    EXPECT_EQ(diameter.GetType(), CDataBox::Type::Double);
    EXPECT_DOUBLE_EQ(diameter.AsDouble(), 0.15);
    EXPECT_EQ(diameter.AsString(), L"0.15");

    CDataBox text(L" 12.5 ");
    double d = 0.0;
    EXPECT_FALSE(CDataBox(L"12.5 m").GetDouble(d));
    EXPECT_TRUE(text.GetDouble(d));
    EXPECT_DOUBLE_EQ(d, 12.5);
    text.ScaleValue(2.0);  // text is never scaled
    EXPECT_EQ(text.AsString(), L" 12.5 ");
    EXPECT_EQ(CDataBox(2.5).AsInt(), 3);
    EXPECT_EQ(CDataBox(L"Čvor").AsInt(7), 7);
    EXPECT_NE(CDataBox(1), CDataBox(1.0));  // types differ
}
