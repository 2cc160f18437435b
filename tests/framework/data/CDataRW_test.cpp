#include "framework/data/CDataRW.h"

#include <gtest/gtest.h>

#include "framework/TempFolder.h"
#include "framework/cad/CXimoCDraw.h"
#include "framework/data/CDDCache.h"
#include "framework/topology/CTopologyMultiStorage.h"
#include "framework/topology/NetworkFixture.h"
#include "host/database/AcDbDatabase.h"
#include "host/base/AcString.h"
#include "host/entities/AcDbAttribute.h"
#include "host/entities/AcDbAttributeDefinition.h"
#include "host/entities/AcDbBlockReference.h"
#include "host/entities/AcDbCircle.h"

#include <rapidjson/document.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

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

namespace {

// One entity of every kind the host draws, in model space and in a block, each carrying every
// framework attribute with values of its own.
class CDataRWDxfTest : public ::testing::Test {
protected:
    void SetUp() override {
        acdbHostApplicationServices()->setWorkingDatabase(&db);
        ids.append(XimoGis::CXimoCDraw::line({0, 0, 0}, {10, 0, 0}).objectId());
        ids.append(XimoGis::CXimoCDraw::polylineLW({{0, 0, 0}, {5, 5, 0}, {9, 1, 0}}, true).objectId());
        ids.append(XimoGis::CXimoCDraw::point({3, 3, 0}).objectId());
        ids.append(XimoGis::CXimoCDraw::circle({4, 4, 0}, 2.0).objectId());
        ids.append(XimoGis::CXimoCDraw::arc({4, 4, 0}, 3.0, 0.0, 1.5).objectId());
        ids.append(XimoGis::CXimoCDraw::text({1, 8, 0}, L"Čvor Č-1", 2.5).objectId());
        ids.append(XimoGis::CXimoCDraw::mtext({1, 12, 0}, L"two\\Plines", 2.5).objectId());
        AddBlockReference();
        for (int i = 0; i < ids.length(); ++i) WriteAll(ids[i], i);
        acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    }

    void AddBlockReference() {
        AcDbBlockTable* blocks = nullptr;
        db.getBlockTable(blocks, AcDb::kForWrite);
        auto* record = new AcDbBlockTableRecord;
        record->setName(L"VALVE");
        AcDbObjectId block;
        blocks->add(block, record);
        blocks->close();
        auto* definition = new AcDbAttributeDefinition({0, 2, 0}, L"?", L"POS", L"Position");
        AcDbObjectId definitionId;
        record->appendAcDbEntity(definitionId, definition);
        auto* insert = new AcDbBlockReference({100, 50, 0}, block);
        AcDbObjectId referenceId, attributeId;
        AcDbBlockTableRecord* space = nullptr;
        acdbOpenObject(space, db.modelSpaceId(), AcDb::kForWrite);
        space->appendAcDbEntity(referenceId, insert);
        space->close();
        auto* value = new AcDbAttribute;
        value->setAttributeFromBlock(definition, insert->blockTransform());
        value->setTextString(L"7");
        insert->appendAttribute(attributeId, value);
        value->close();
        insert->close();
        definition->close();
        record->close();
        ids.append(referenceId);
        ids.append(attributeId);
        ids.append(definitionId);
    }

    static void WriteAll(AcDbObjectId id, int index) {
        AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForWrite);
        ASSERT_TRUE(entity);
        for (const auto& [attribute, value] : Expected(index)) ASSERT_TRUE(CDataRW::Write(entity.object(), attribute, value));
    }

    // Every attribute of the dictionary and the two written by name, typed as the framework writes them.
    static std::vector<std::pair<std::wstring, CDataBox>> Expected(int index) {
        const std::wstring tag = std::to_wstring(index);
        return {{CDDCache::GetAttributeName(CDDCache::GetSystemId()), CDataBox(1)},
                {CDDCache::GetAttributeName(CDDCache::GetGuid()), CDataBox(L"{GUID-" + tag + L"}")},
                {CDDCache::GetAttributeName(CDDCache::GetASDefinitionId()), CDataBox(L"DEF_Ž")},
                {CDDCache::GetAttributeName(CDDCache::GetASInternalTag()), CDataBox(8)},
                {CDDCache::GetAttributeName(CDDCache::GetEntityType()), CDataBox(256 + index)},
                {CDDCache::GetAttributeName(CDDCache::GetASRefNode()), CDataBox(L"{NODE}")},
                {CDDCache::GetAttributeName(CDDCache::GetASWidth()), CDataBox(420.5 + index)},
                {CDDCache::GetAttributeName(CDDCache::GetASHeight()), CDataBox(297.25)},
                {CDDCache::GetAttributeName(CDDCache::GetASComponentId()), CDataBox(L"04BOM")},
                {CDDCache::GetAttributeName(CDDCache::GetASElementId()), CDataBox(L"{EL-" + tag + L"}")},
                {CDDCache::GetAttributeName(CDDCache::GetASElementTypeId()), CDataBox(L"FITTING_TEE")},
                {CDDCache::GetAttributeName(CDDCache::GetASElementCatalogId()), CDataBox(L"{CAT}")},
                {CDDCache::GetAttributeName(CDDCache::GetASElementIgnore()), CDataBox(index % 2)},
                {L"AS_ELEMENT_DATAHOLDER", CDataBox(1)},
                {L"AS_ELEMENT_POSNUM", CDataBox(index + 1)}};
    }

    XimoGis::Testing::TempFolder folder;
    AcDbDatabase db;
    AcDbObjectIdArray ids;
};

}  // namespace

TEST_F(CDataRWDxfTest, AttributesOnEveryEntityKindSurviveSavingAndLoadingTheDrawing) {
    const std::wstring file = (folder.Path() / "attributes.dxf").wstring();
    std::wstring error;
    ASSERT_EQ(db.dxfOut(file.c_str(), &error), Acad::eOk) << error;
    AcDbDatabase loaded(false);
    ASSERT_EQ(loaded.dxfIn(file.c_str(), &error), Acad::eOk) << error;
    for (int i = 0; i < ids.length(); ++i) {
        const AcDbObjectId id = loaded.idFromHandle(ids[i].handle());
        AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForRead);
        ASSERT_TRUE(entity) << i;
        for (const auto& [attribute, expected] : Expected(i)) {
            CDataBox value;
            ASSERT_TRUE(CDataRW::Read(entity.object(), attribute, value)) << entity->isA() << " " << attribute;
            EXPECT_EQ(value, expected) << entity->isA() << " " << attribute;
        }
        CDataBox absent(L"kept");
        EXPECT_FALSE(CDataRW::Read(entity.object(), L"AS_NOT_WRITTEN", absent));
        EXPECT_EQ(absent, CDataBox(L"kept"));
    }
}

TEST_F(CDataRWDxfTest, EzdxfSeesTheAttributesAsExtendedData) {
    if (std::system("/usr/bin/python3 -c 'import ezdxf' 2>/dev/null") != 0)
        GTEST_SKIP() << "ezdxf is not installed for /usr/bin/python3 (scripts/setup.sh installs python3-ezdxf)";
    const std::filesystem::path file = folder.Path() / "attributes.dxf";
    ASSERT_EQ(db.dxfOut(file.wstring().c_str()), Acad::eOk);
    const std::string command = "/usr/bin/python3 '" XIMO_SOURCE_DIR "/tests/host/dxf/dxf_inspect.py' '" +
                                file.string() + "' > '" + (folder.Path() / "xdata.json").string() + "'";
    ASSERT_EQ(std::system(command.c_str()), 0);
    rapidjson::Document json;
    json.Parse(folder.Read("xdata.json").c_str());
    ASSERT_TRUE(json.IsObject() && json.HasMember("xdata"));
    char handle[16];
    for (int i = 0; i < ids.length(); ++i) {
        std::snprintf(handle, sizeof handle, "%X", static_cast<unsigned>(ids[i].handle()));
        ASSERT_TRUE(json["xdata"].HasMember(handle)) << handle;
        const auto& apps = json["xdata"][handle];
        const rapidjson::Value* tags = nullptr;
        for (const auto& app : apps.GetArray())
            if (std::string(app[0].GetString()) == "XIMOGIS") tags = &app[1];
        ASSERT_NE(tags, nullptr) << handle;
        const auto expected = Expected(i);
        ASSERT_EQ(tags->Size(), 2 * expected.size()) << handle;
        for (std::size_t k = 0; k < expected.size(); ++k) {
            const auto& name = (*tags)[static_cast<rapidjson::SizeType>(2 * k)];
            const auto& value = (*tags)[static_cast<rapidjson::SizeType>(2 * k + 1)];
            EXPECT_EQ(name[0].GetInt(), 1000);
            EXPECT_EQ(acutUtf8ToWchar(name[1].GetString()), expected[k].first);
            const CDataBox& want = expected[k].second;
            if (want.GetType() == CDataBox::Type::Integer) {
                EXPECT_EQ(value[0].GetInt(), 1071);
                EXPECT_EQ(value[1].GetInt(), want.AsInt());
            } else if (want.GetType() == CDataBox::Type::Double) {
                EXPECT_EQ(value[0].GetInt(), 1040);
                EXPECT_EQ(value[1].GetDouble(), want.AsDouble());
            } else {
                EXPECT_EQ(value[0].GetInt(), 1000);
                EXPECT_EQ(acutUtf8ToWchar(value[1].GetString()), want.AsString());
            }
        }
    }
    EXPECT_EQ(json["errors"].Size(), 0u);
}
