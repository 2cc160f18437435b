#include "module/definitions/CASDimensions.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

using XimoGis::AssemblySchemes::CASDimensions;

TEST(CASDimensions, NestedRectanglesAreFoundOneLevelDownAndMoveTogether) {
    CASDimensions sheet(210.0, 297.0);
    sheet.SetUpperRight(AcGePoint3d(210.0, 297.0, 0.0));
    auto scheme = boost::make_shared<CASDimensions>(100.0, 80.0);
    scheme->SetInternalId(L"S");
    auto grandchild = boost::make_shared<CASDimensions>(10.0, 5.0);
    grandchild->SetInternalId(L"G");
    scheme->AddSubComponentDimensions(grandchild);
    sheet.AddSubComponentDimensions(scheme);
    EXPECT_EQ(sheet.GetDimensionsByInternalId(L"S"), scheme);
    EXPECT_FALSE(sheet.GetDimensionsByInternalId(L"G"));
    EXPECT_FALSE(sheet.GetDimensionsByInternalId(nullptr));

    sheet.TranslateDimension(AcGeVector3d(10.0, 5.0, 0.0));
    EXPECT_EQ(sheet.GetBottomLeft(), AcGePoint3d(10.0, 5.0, 0.0));
    EXPECT_EQ(sheet.GetUpperRight(), AcGePoint3d(220.0, 302.0, 0.0));
    EXPECT_EQ(scheme->GetBottomLeft(), AcGePoint3d(10.0, 5.0, 0.0));
    EXPECT_EQ(grandchild->GetUpperRight(), AcGePoint3d(10.0, 5.0, 0.0));
    EXPECT_DOUBLE_EQ(sheet.GetWidth(), 210.0);
    EXPECT_DOUBLE_EQ(grandchild->GetHeight(), 5.0);
}
