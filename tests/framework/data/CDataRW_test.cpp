#include "framework/data/CDataRW.h"

#include <gtest/gtest.h>

#include "framework/data/CDDCache.h"
#include "framework/topology/CTopologyMultiStorage.h"
#include "framework/topology/NetworkFixture.h"
#include "host/database/AcDbDatabase.h"
#include "host/entities/AcDbCircle.h"

using XimoGis::Data::CDataBox;
using XimoGis::Data::CDataRW;
using XimoGis::Data::CDDCache;

TEST(CDataRW, AttributesAreTypedReplacedAndRemoved) {
    AcDbDatabase db;
    AcDbBlockTableRecord* ms = nullptr;
    acdbOpenObject(ms, db.modelSpaceId(), AcDb::kForWrite);
    auto* circle = new AcDbCircle({0, 0, 0}, AcGeVector3d::kZAxis, 1.0);
    AcDbObjectId id;
    ms->appendAcDbEntity(id, circle);
    ms->close();

    ASSERT_TRUE(CDataRW::Write(circle, CDDCache::GetASWidth(), 210.0));
    ASSERT_TRUE(CDataRW::Write(circle, CDDCache::GetGuid(), L"{ABC}"));
    ASSERT_TRUE(CDataRW::Write(circle, L"AS_ELEMENT_POSNUM", 3));
    ASSERT_TRUE(CDataRW::Write(circle, L"AS_ELEMENT_POSNUM", 4));  // replaces in place
    EXPECT_TRUE(db.isRegApp(CDataRW::kApplication));
    circle->close();

    CDataBox value(L"untouched");
    EXPECT_FALSE(CDataRW::Read(id, CDDCache::GetASHeight(), value));
    EXPECT_EQ(value, CDataBox(L"untouched"));
    ASSERT_TRUE(CDataRW::Read(id, CDDCache::GetASWidth(), value));
    EXPECT_EQ(value, CDataBox(210.0));
    ASSERT_TRUE(CDataRW::Read(id, L"AS_ELEMENT_POSNUM", value));
    EXPECT_EQ(value, CDataBox(4));
    ASSERT_TRUE(CDataRW::Read(id, CDDCache::GetGuid(), value));
    EXPECT_EQ(value, CDataBox(L"{ABC}"));

    // Stored by name, readable as plain extended data.
    {
        AcDbObjectPointer<AcDbCircle> reader(id, AcDb::kForRead);
        const AcDbXDataApp* data = reader->xDataFor(CDataRW::kApplication);
        ASSERT_NE(data, nullptr);
        ASSERT_EQ(data->values.size(), 6u);
        EXPECT_EQ(data->values[0], AcDbXDataValue::string(L"AS_WIDTH"));
        EXPECT_EQ(data->values[5], AcDbXDataValue::int32(4));
        // Writing needs the entity open for write.
        EXPECT_FALSE(CDataRW::Write(reader.object(), CDDCache::GetASHeight(), 297.0));
        // Opening for write fails while it is open for read: skipped.
        EXPECT_FALSE(CDataRW::Write(id, CDDCache::GetASHeight(), 297.0));
    }

    // A null value removes the attribute; an unknown id writes nothing.
    ASSERT_TRUE(CDataRW::Write(id, CDDCache::GetGuid(), CDataBox()));
    EXPECT_FALSE(CDataRW::Read(id, CDDCache::GetGuid(), value));
    EXPECT_FALSE(CDataRW::Write(id, 999, 1));
    EXPECT_EQ(CDDCache::GetAttributeId(CDDCache::GetAttributeName(CDDCache::GetASElementIgnore())),
              CDDCache::GetASElementIgnore());
}

namespace {

using CDataRWNodeTest = XimoGis::Testing::NetworkFixture;

}  // namespace

TEST_F(CDataRWNodeTest, NodeDataReadsBackWithItsTypeAndNullOrMissingGiveNoValue) {
    const auto* topology = XimoGis::Topology::CTopologyMultiStorage::Instance()->GetTopology(system);
    ASSERT_NE(topology, nullptr);
    const auto& configuration = topology->GetDataConfiguration();
    const auto* j1 = topology->GetNodeByName(L"J1");
    const auto* v1 = topology->GetNodeByName(L"V1");
    const auto* m1 = topology->GetNodeByName(L"M1");

    CDataBox value;
    ASSERT_TRUE(CDataRW::Read(j1, configuration.GetDefinition(L"nodes.pressure"), value));
    EXPECT_EQ(value.GetType(), CDataBox::Type::Double);
    value.ScaleValue(100.0);
    EXPECT_EQ(value.AsString(), L"450");
    ASSERT_TRUE(CDataRW::Read(m1, configuration.GetDefinition(L"nodes.pressure"), value));
    EXPECT_EQ(value, CDataBox(4.0));  // written as 4, read as the real column holds it
    ASSERT_TRUE(CDataRW::Read(j1, configuration.GetDefinition(L"nodes.valves"), value));
    EXPECT_EQ(value, CDataBox(3));
    ASSERT_TRUE(CDataRW::Read(j1, configuration.GetDefinition(L"nodes.kind"), value));
    EXPECT_EQ(value.AsString(), L"junction");
    EXPECT_FALSE(value.IsNumeric());
    ASSERT_TRUE(CDataRW::Read(j1, configuration.GetDefinition(L"nodes.name"), value));
    EXPECT_EQ(value, CDataBox(L"J1"));

    // A null value and a node without the data: read, but no value.
    EXPECT_TRUE(CDataRW::Read(v1, configuration.GetDefinition(L"nodes.pressure"), value));
    EXPECT_FALSE(value.IsNotNull());
    value = CDataBox(1);
    EXPECT_TRUE(CDataRW::Read(j1, configuration.GetDefinition(L"nodes.manhole_depth"), value));
    EXPECT_TRUE(value.IsNull());
    // A missing definition, a missing node, or a section definition on a node: no read, no value.
    value = CDataBox(1);
    EXPECT_FALSE(CDataRW::Read(j1, configuration.GetDefinition(L"nodes.colour"), value));
    EXPECT_TRUE(value.IsNull());
    EXPECT_FALSE(CDataRW::Read(nullptr, configuration.GetDefinition(L"nodes.kind"), value));
    EXPECT_FALSE(CDataRW::Read(j1, configuration.GetDefinition(L"sections.diameter"), value));
    ASSERT_TRUE(CDataRW::Read(topology->GetSectionByGuid(L"{S3}"), configuration.GetDefinition(L"sections.diameter"),
                              value));
    EXPECT_EQ(value, CDataBox(100));
}
