#include "module/instances/CASElementInstance.h"

#include "module/instances/SheetFixture.h"

#include "framework/data/CDataRW.h"

#include <gtest/gtest.h>

using namespace XimoGis::AssemblySchemes;
using XimoGis::CXimoCEntityPtr;

namespace {

using ElementTest = Testing::SheetFixture;

int ReadInt(AcDbObjectId id, const std::wstring& name) {
    XimoGis::Data::CDataBox value;
    return XimoGis::Data::CDataRW::Read(id, name, value) ? value.AsInt(-99) : -99;
}

}  // namespace

TEST_F(ElementTest, AnIgnoredElementShowsTheNumberOfTheElementItRefersTo) {
    const auto sheet = DrawSheet(&water, {0, 0, 0});
    const auto valve = AddElement(*sheet, &water, L"{CAT-VALVE}", L"", 50, 50);
    const auto flange = AddElement(*sheet, &water, L"{CAT-FLANGE}", L"", 80, 50);
    flange->SetElementAsIgnored(1, valve->GetElementId().c_str());
    flange->SetElementNumber(-1);  // keeps the referred element
    EXPECT_EQ(flange->IsElementIgnored(), 1);
    EXPECT_EQ(flange->GetReferredElement(), valve->GetElementId());
    EXPECT_EQ(ReadInt(flange->GetObjects()->last(), CASElementInstance::kPositionAttribute), -1);
    EXPECT_EQ(ReadInt(flange->GetObjects()->last(), L"AS_ELEMENT_IGNORE"), 1);
    valve->SetElementNumber(5);
    EXPECT_EQ(flange->GetElementNumber(), 5);
    // References that go round, or to nothing, give no number.
    valve->SetElementAsIgnored(1, flange->GetElementId().c_str());
    EXPECT_EQ(flange->GetElementNumber(), -1);
    valve->SetElementAsIgnored(1, L"{GONE}");
    EXPECT_EQ(flange->GetElementNumber(), -1);

    flange->SetElementNumber(3);
    EXPECT_EQ(flange->IsElementIgnored(), 0);
    EXPECT_EQ(flange->GetReferredElement(), L"");
    EXPECT_EQ(flange->GetElementNumber(), 3);
}

TEST_F(ElementTest, ReadingEntitiesKeepsOneCopyAndAnElementWithoutDataHolderCountsAsIgnored) {
    const auto sheet = DrawSheet(&water, {0, 0, 0});
    const auto valve = AddElement(*sheet, &water, L"{CAT-VALVE}", L"FITTINGS", 50, 50);
    const auto flange = AddElement(*sheet, &water, L"{CAT-FLANGE}", L"", 80, 50);
    flange->SetElementAsIgnored(1, valve->GetElementId().c_str());
    const AcDbObjectIdArray& ids = *valve->GetObjects();
    CASElementInstance reread;
    for (const AcDbObjectId id : {ids.last(), ids.first(), ids.last()}) {
        CXimoCEntityPtr entity(id, AcDb::kForRead);
        reread.DeserializeEntity(entity);
    }
    EXPECT_EQ(*reread.GetObjects(), (AcDbObjectIdArray{ids.last(), ids.first()}));
    EXPECT_EQ(reread.GetEntityHolder(), ids.first());
    EXPECT_EQ(reread.GetCatalogId(), L"{CAT-VALVE}");
    EXPECT_EQ(reread.GetTypeProviderId(), L"FITTINGS");
    EXPECT_EQ(reread.GetGeosGeometry()->getArea(), 14.0 * 8.0);  // circle of radius 4 and a line of 10
    EXPECT_NE(reread.GetXML().find(L"catalog=\"{CAT-VALVE}\" provider=\"FITTINGS\" number=\"1\""), std::wstring::npos);

    // The flange's line alone has no data holder: ignored, showing the valve's number.
    CASElementInstance partial;
    partial.SetSchemeInstance(sheet.get());
    CXimoCEntityPtr line(flange->GetObjects()->last(), AcDb::kForRead);
    partial.DeserializeEntity(line);
    EXPECT_TRUE(partial.GetEntityHolder().isNull());
    EXPECT_EQ(partial.IsElementIgnored(), 1);
    EXPECT_EQ(partial.GetElementNumber(), 1);
    partial.SetSchemeInstance(nullptr);
    EXPECT_EQ(partial.GetElementNumber(), -1);
}

TEST_F(ElementTest, TheDataHolderMarkKeepsAReadOpenEntityOpenForReading) {
    const AcDbObjectId id = Line({0, 0, 0}, 0, 0, 5, 5);
    CXimoCEntityPtr entity(id, AcDb::kForRead);
    CASElementInstance::MarkAsDataHolder(entity);
    EXPECT_FALSE(entity.isWriteEnabled());
    entity.close();
    CASElementInstance element;
    element.AddElementEntities({AcDbObjectId(), Line({0, 0, 0}, 0, 0, 1, 1), id, id});
    EXPECT_EQ(element.GetObjects()->length(), 2);
    EXPECT_EQ(element.GetEntityHolder(), id);
    EXPECT_EQ(element.GetEntityType(), XimoGis::etSchemeElement);
}
