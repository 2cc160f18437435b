#include "module/definitions/CASDimensions.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

using XimoGis::AssemblySchemes::CASDimensions;

namespace {

boost::shared_ptr<CASDimensions> Rectangle(const wchar_t* id, double width, double height) {
    auto rectangle = boost::make_shared<CASDimensions>(width, height);
    rectangle->SetInternalId(id);
    rectangle->SetUpperRight(AcGePoint3d(width, height, 0.0));
    return rectangle;
}

}  // namespace

TEST(CASDimensions, LooksOnlyAmongDirectSubRectangles) {
    CASDimensions sheet(210.0, 297.0);
    EXPECT_EQ(sheet.GetInternalId(), L"");
    EXPECT_EQ(sheet.GetBottomLeft(), AcGePoint3d(0, 0, 0));
    EXPECT_EQ(sheet.GetUpperRight(), AcGePoint3d(0, 0, 0));
    auto scheme = Rectangle(L"S", 100.0, 80.0);
    scheme->AddSubComponentDimensions(Rectangle(L"G", 10.0, 5.0));
    sheet.AddSubComponentDimensions(scheme);
    sheet.AddSubComponentDimensions(nullptr);
    EXPECT_EQ(sheet.GetDimensionsByInternalId(L"S"), scheme);
    EXPECT_FALSE(sheet.GetDimensionsByInternalId(L"G"));
    EXPECT_FALSE(sheet.GetDimensionsByInternalId(L"s"));
    EXPECT_FALSE(sheet.GetDimensionsByInternalId(nullptr));
    EXPECT_TRUE(scheme->GetDimensionsByInternalId(L"G"));
    EXPECT_EQ(sheet.GetSubDimensions().size(), 1u);
}

TEST(CASDimensions, TranslationMovesEveryLevelAndKeepsSizes) {
    CASDimensions sheet(210.0, 297.0);
    sheet.SetUpperRight(AcGePoint3d(210.0, 297.0, 0.0));
    auto scheme = Rectangle(L"S", 100.0, 80.0);
    auto grandchild = Rectangle(L"G", 10.0, 5.0);
    scheme->AddSubComponentDimensions(grandchild);
    sheet.AddSubComponentDimensions(scheme);

    sheet.TranslateDimension(AcGeVector3d(10.0, 5.0, 0.0));
    EXPECT_EQ(sheet.GetBottomLeft(), AcGePoint3d(10.0, 5.0, 0.0));
    EXPECT_EQ(sheet.GetUpperRight(), AcGePoint3d(220.0, 302.0, 0.0));
    EXPECT_EQ(scheme->GetBottomLeft(), AcGePoint3d(10.0, 5.0, 0.0));
    EXPECT_EQ(grandchild->GetUpperRight(), AcGePoint3d(20.0, 10.0, 0.0));
    EXPECT_DOUBLE_EQ(sheet.GetWidth(), 210.0);
    EXPECT_DOUBLE_EQ(scheme->GetHeight(), 80.0);
    EXPECT_DOUBLE_EQ(grandchild->GetWidth(), 10.0);

    // A copy shares the sub-rectangles.
    const CASDimensions copy(sheet);
    EXPECT_EQ(copy.GetDimensionsByInternalId(L"S"), scheme);
}
