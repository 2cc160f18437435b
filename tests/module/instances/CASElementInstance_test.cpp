#include "module/instances/CASElementInstance.h"

#include "module/instances/SheetFixture.h"

#include "framework/data/CDDCache.h"
#include "framework/data/CDataRW.h"
#include "host/input/AcEdScreen.h"

#include <gtest/gtest.h>

using namespace XimoGis::AssemblySchemes;
using XimoGis::CXimoCEntityPtr;
using XimoGis::Data::CDataBox;
using XimoGis::Data::CDataRW;
using XimoGis::Data::CDDCache;

namespace {

using ElementTest = Testing::SheetFixture;

int ReadInt(AcDbObjectId id, const std::wstring& name) {
    CDataBox value;
    return CDataRW::Read(id, name, value) ? value.AsInt(-99) : -99;
}

}  // namespace

TEST_F(ElementTest, NumberMinusOneMarksTheElementIgnoredAndAnotherNumberClearsTheMark) {
    const auto sheet = DrawSheet(&water, {0, 0, 0});
    const auto valve = AddElement(*sheet, &water, L"{CAT-VALVE}", L"", 50, 50);
    const auto flange = AddElement(*sheet, &water, L"{CAT-FLANGE}", L"", 80, 50);
    EXPECT_EQ(flange->IsElementIgnored(), 0);
    flange->SetElementAsIgnored(1, valve->GetElementId().c_str());
    flange->SetElementNumber(-1);  // keeps the referred element
    EXPECT_EQ(flange->IsElementIgnored(), 1);
    EXPECT_EQ(flange->GetReferredElement(), valve->GetElementId());
    EXPECT_EQ(flange->GetElementNumber(), 1);
    for (const AcDbObjectId& id : *flange->GetObjects()) {
        EXPECT_EQ(ReadInt(id, CASElementInstance::kPositionAttribute), -1);
        EXPECT_EQ(ReadInt(id, CDDCache::GetAttributeName(CDDCache::GetASElementIgnore())), 1);
    }
    valve->SetElementNumber(5);
    EXPECT_EQ(flange->GetElementNumber(), 5);

    flange->SetElementNumber(3);
    EXPECT_EQ(flange->IsElementIgnored(), 0);
    EXPECT_EQ(flange->GetReferredElement(), L"");
    EXPECT_EQ(flange->GetElementNumber(), 3);
    EXPECT_EQ(ReadInt(flange->GetObjects()->last(), CDDCache::GetAttributeName(CDDCache::GetASElementIgnore())), 0);
}

TEST_F(ElementTest, ReferencesGoingRoundOrToNothingGiveNoNumber) {
    const auto sheet = DrawSheet(&water, {0, 0, 0});
    const auto first = AddElement(*sheet, &water, L"{CAT-A}", L"", 50, 50);
    const auto second = AddElement(*sheet, &water, L"{CAT-B}", L"", 80, 50);
    first->SetElementAsIgnored(1, second->GetElementId().c_str());
    second->SetElementAsIgnored(1, first->GetElementId().c_str());
    EXPECT_EQ(first->GetElementNumber(), -1);
    second->SetElementAsIgnored(1, L"{GONE}");
    EXPECT_EQ(first->GetElementNumber(), -1);
    CASElementInstance loose;
    EXPECT_EQ(loose.GetElementNumber(), -1);
}

TEST_F(ElementTest, ReadingEntitiesKeepsOneCopyAndAnElementWithoutDataHolderCountsAsIgnored) {
    const auto sheet = DrawSheet(&water, {0, 0, 0});
    const auto valve = AddElement(*sheet, &water, L"{CAT-VALVE}", L"FITTINGS", 50, 50);
    const auto flange = AddElement(*sheet, &water, L"{CAT-FLANGE}", L"", 80, 50);
    flange->SetElementAsIgnored(1, valve->GetElementId().c_str());

    CASElementInstance reread;
    for (const AcDbObjectId id : {valve->GetObjects()->last(), valve->GetObjects()->first(), valve->GetObjects()->last()}) {
        CXimoCEntityPtr entity(id, AcDb::kForRead);
        reread.DeserializeEntity(entity);
    }
    EXPECT_EQ(*reread.GetObjects(), (AcDbObjectIdArray{valve->GetObjects()->last(), valve->GetObjects()->first()}));
    EXPECT_EQ(reread.GetEntityHolder(), valve->GetEntityHolder());
    EXPECT_EQ(reread.GetCatalogId(), L"{CAT-VALVE}");
    EXPECT_EQ(reread.GetTypeProviderId(), L"FITTINGS");

    // The flange's line alone: no data holder, so ignored, showing the valve's number through
    // the referred element written on every entity.
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

TEST_F(ElementTest, MarkingTheDataHolderGivesAReadOpenEntityBackForReading) {
    const AcDbObjectId id = SheetFixture::Line({0, 0, 0}, 0, 0, 5, 5);
    CXimoCEntityPtr entity(id, AcDb::kForRead);
    CASElementInstance::MarkAsDataHolder(entity);
    EXPECT_FALSE(entity.isWriteEnabled());
    entity.close();
    EXPECT_EQ(ReadInt(id, CASElementInstance::kDataHolderAttribute), 1);
    CASElementInstance element;
    element.AddElementEntities({AcDbObjectId(), SheetFixture::Line({0, 0, 0}, 0, 0, 1, 1), id, id});
    EXPECT_EQ(element.GetObjects()->length(), 2);
    EXPECT_EQ(element.GetEntityHolder(), id);
    EXPECT_EQ(element.GetEntityType(), XimoGis::etSchemeElement);
}

TEST_F(ElementTest, ExtentsOutlineHighlightAndDescriptionCoverEveryEntity) {
    const auto sheet = DrawSheet(&water, {0, 0, 0});
    const auto valve = AddElement(*sheet, &water, L"{CAT-VALVE}", L"", 50, 50);
    AcDbExtents extents;
    ASSERT_EQ(valve->GetExtents(extents), 1);
    EXPECT_EQ(extents.minPoint().x, 46.0);
    EXPECT_EQ(extents.maxPoint().x, 60.0);
    const auto outline = valve->GetGeosGeometry();
    ASSERT_TRUE(outline);
    EXPECT_EQ(outline->getArea(), 14.0 * 8.0);
    EXPECT_EQ(CASElementInstance().GetExtents(extents), 0);
    EXPECT_FALSE(CASElementInstance().GetGeosGeometry());

    EXPECT_EQ(valve->Mark(1, nullptr), 1);
    EXPECT_TRUE(acedScreen()->isHighlighted(valve->GetObjects()->last()));
    valve->Mark(0, nullptr);
    EXPECT_FALSE(acedScreen()->isHighlighted(valve->GetObjects()->last()));
    EXPECT_EQ(valve->DrawCheckMark(), 1);
    EXPECT_EQ(valve->GetXML(), L"<asElement id=\"" + valve->GetElementId() +
                                   L"\" catalog=\"{CAT-VALVE}\" provider=\"\" number=\"1\" ignored=\"0\" entities=\"2\"/>");
}
