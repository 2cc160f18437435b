#include "module/instances/CASInstance.h"

#include "apps/asch/AschTestSupport.h"
#include "framework/TempFolder.h"
#include "module/instances/SheetFixture.h"
#include "module/manager/CASManagerTestAccess.h"

#include "framework/data/CDDCache.h"
#include "framework/data/CDataRW.h"
#include "framework/systems/CSystemManager.h"
#include "host/base/AcString.h"
#include "host/input/AcEdScreen.h"

#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <cstdlib>
#include <map>

using namespace XimoGis::AssemblySchemes;
using XimoGis::Data::CDataBox;
using XimoGis::Data::CDataRW;
using XimoGis::Data::CDDCache;

namespace {

using InstanceTest = Testing::SheetFixture;

// The framework attribute names on an entity, in stored order, joined by spaces.
std::wstring Names(AcDbObjectId id) {
    AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForRead);
    std::wstring names;
    if (const AcDbXDataApp* data = entity->xDataFor(CDataRW::kApplication))
        for (std::size_t i = 0; i < data->values.size(); i += 2)
            names += (names.empty() ? L"" : L" ") + std::get<std::wstring>(data->values[i].value);
    return names;
}

std::string Utf8(const std::wstring& text) { return acutWcharToUtf8(text); }
std::string Hex(AcDbObjectId id) { return id.isNull() ? "" : Utf8(CASAudit::FormatHandle(id.handle())); }
std::string Hexes(const AcDbObjectIdArray& ids) {
    std::string hexes;
    for (const AcDbObjectId& id : ids) hexes += Hex(id) + " ";
    return hexes;
}
std::string Hexes(const rapidjson::Value& array) {
    std::string hexes;
    for (const auto& item : array.GetArray()) hexes += std::string(item.GetString()) + " ";
    return hexes;
}

// Hears element deletions and looks at the sheet while it does.
class DeletionProbe : public IASComponentInterface {
public:
    DeletionProbe() : IASComponentInterface(L"00PROBE", eASComponentNone, 0, 0, L"", 0, L"") {}
    void OnBeforeASElementDeleted(CASInstance* sheet, CASDefinition*, CASElementInstance* element) override {
        seen.push_back(sheet->GetElementInstanceById(element->GetElementId().c_str()).get() == element &&
                       !element->GetObjects()->first().isErased());
    }
    std::vector<bool> seen;  // per event: still on the sheet, entities not yet erased
};

}  // namespace

TEST_F(InstanceTest, SerializingWritesEachKindOfEntityItsAttributesInOrder) {
    const auto sheet = DrawSheet(&water, {10, 20, 0});
    const auto element = AddElement(*sheet, &water, L"{CAT-TEE}", L"", 100, 100);
    EXPECT_EQ(Names(sheet->GetThirdGeneralEntity()), L"SYSTEM_ID GUID AS_DEFINITION_ID AS_INTERNAL_TAG ENTITY_TYPE "
                                                     L"AS_REF_NODE AS_WIDTH AS_HEIGHT");
    CDataBox tag;
    ASSERT_TRUE(CDataRW::Read(sheet->GetThirdGeneralEntity(), CDDCache::GetASInternalTag(), tag));
    EXPECT_EQ(tag, CDataBox(4));
    EXPECT_EQ(Names(sheet->GetDrawnEntitiesByComponent(L"00FRAME")->first()),
              L"SYSTEM_ID GUID AS_INTERNAL_TAG AS_COMPONENT_ID ENTITY_TYPE");
    // The scheme component does not stamp the sheet type over the elements' 512.
    EXPECT_EQ(Names(element->GetObjects()->last()),
              L"AS_ELEMENT_POSNUM AS_ELEMENT_IGNORE AS_ELEMENT_ID AS_ELEMENT_TYPE_ID AS_ELEMENT_CATALOG_ID GUID "
              L"ENTITY_TYPE SYSTEM_ID AS_INTERNAL_TAG AS_COMPONENT_ID");
    ASSERT_TRUE(CDataRW::Read(element->GetObjects()->last(), CDDCache::GetEntityType(), tag));
    EXPECT_EQ(tag, CDataBox(512));
    // No node, no AS_REF_NODE; no system, nothing written.
    EXPECT_EQ(Names(DrawSheet(&water, {500, 20, 0}, L"")->GetId()),
              L"SYSTEM_ID GUID AS_DEFINITION_ID AS_INTERNAL_TAG ENTITY_TYPE AS_WIDTH AS_HEIGHT");
    EXPECT_EQ(Names(DrawSheet(nullptr, {1000, 20, 0})->GetDrawnEntitiesByComponent(L"04BOM")->first()), L"");
}

TEST_F(InstanceTest, GeneralDataComesOnceFromTheFirstGeneralEntityThatHasIt) {
    const auto drawn = DrawSheet(&water, {10, 20, 5});
    for (int attribute : {CDDCache::GetASDefinitionId(), CDDCache::GetASWidth(), CDDCache::GetASHeight()})
        CDataRW::Write(drawn->GetId(), attribute, CDataBox());
    CDataRW::Write(drawn->GetSecondGeneralEntity(), CDDCache::GetASDefinitionId(), L"{FROM-2}");
    CDataRW::Write(drawn->GetThirdGeneralEntity(), CDDCache::GetASDefinitionId(), L"{FROM-4}");
    CASInstance sheet;
    for (const AcDbObjectId id : {drawn->GetId(), drawn->GetSecondGeneralEntity(), drawn->GetThirdGeneralEntity()}) {
        XimoGis::CXimoCEntityPtr entity(id, AcDb::kForRead);
        sheet.DeserializeEntity(entity, XimoGis::etAssemblyScheme, &water);
    }
    EXPECT_EQ(sheet.GetDefinitionId(), L"{FROM-2}");
    EXPECT_EQ(sheet.GetWidth(), 420.0);
    AcGePoint3d base;
    sheet.GetBasePoint(base);
    EXPECT_EQ(base, AcGePoint3d(10, 20, 5));
    EXPECT_EQ(sheet.GetThirdGeneralEntity(), drawn->GetThirdGeneralEntity());
}

TEST_F(InstanceTest, ElementsOfOneCatalogItemShareANumberAndOthersFollowTheLargest) {
    const auto sheet = DrawSheet(&water, {0, 0, 0});
    EXPECT_EQ(sheet->GetMaxPositionNumber(), 0);
    EXPECT_EQ(AddElement(*sheet, &water, L"{CAT-TEE}", L"", 50, 50)->GetElementNumber(), 1);
    EXPECT_EQ(AddElement(*sheet, &water, L"{CAT-TEE}", L"", 80, 50)->GetElementNumber(), 1);
    const auto valve = AddElement(*sheet, &water, L"{CAT-VALVE}", L"", 110, 50);
    EXPECT_EQ(valve->GetElementNumber(), 2);
    valve->SetElementNumber(7);
    EXPECT_EQ(AddElement(*sheet, &water, L"{cat-valve}", L"PIPES", 140, 50)->GetElementNumber(), 8);
    EXPECT_EQ(AddElement(*sheet, &water, L"{CAT-VALVE}", L"", 170, 50)->GetElementNumber(), 7);
    EXPECT_EQ(sheet->GetMaxPositionNumber(), 8);
    EXPECT_EQ(valve->GetGuid(), sheet->GetGuid());
}

TEST_F(InstanceTest, RemovalTellsTheComponentsFirstAndErasesOnlyWhenAsked) {
    const auto sheet = DrawSheet(&water, {0, 0, 0});
    EXPECT_EQ(sheet->RemoveElementInstance(boost::make_shared<CASElementInstance>(), 1), 0);  // no elements
    const auto kept = AddElement(*sheet, &water, L"{CAT-A}", L"", 50, 50);
    const auto dropped = AddElement(*sheet, &water, L"{CAT-B}", L"", 80, 50);
    const auto erased = AddElement(*sheet, &water, L"{CAT-C}", L"", 110, 50);
    auto probe = boost::make_shared<DeletionProbe>();
    auto& components = CASManagerTestAccess::Components();
    const auto saved = components;
    components[probe->GetId()] = probe;
    auto lookalike = boost::make_shared<CASElementInstance>();  // same id, another object
    lookalike->SetElementId(kept->GetElementId().c_str());
    EXPECT_EQ(sheet->RemoveElementInstance(lookalike, 1), 1);
    EXPECT_EQ(sheet->RemoveElementInstance(nullptr, 1), 0);
    EXPECT_EQ(sheet->RemoveElementInstance(dropped, 0), 1);
    EXPECT_EQ(sheet->RemoveElementInstance(erased, 1), 1);
    components = saved;
    EXPECT_EQ(probe->seen, (std::vector<bool>{true, true}));
    EXPECT_FALSE(dropped->GetObjects()->first().isErased());
    EXPECT_TRUE(erased->GetObjects()->first().isErased() && erased->GetObjects()->last().isErased());
    ASSERT_EQ(sheet->GetElementInstances().size(), 1u);
    EXPECT_EQ(sheet->GetElementInstances().begin()->second, kept);
}

TEST_F(InstanceTest, TheSheetListsMovesHighlightsAndErasesItsEntitiesAsAWhole) {
    const auto sheet = DrawSheet(&water, {10, 20, 0});
    const auto first = AddElement(*sheet, &water, L"{CAT-A}", L"", 50, 50);
    const auto second = AddElement(*sheet, &water, L"{CAT-B}", L"", 80, 50);
    AcDbObjectIdArray expected{sheet->GetId(), sheet->GetSecondGeneralEntity(), sheet->GetThirdGeneralEntity()};
    for (const wchar_t* component : {L"00FRAME", L"01SCHEME", L"04BOM"})
        expected.append(*sheet->GetDrawnEntitiesByComponent(component));
    const bool firstIsLower = first->GetElementId() < second->GetElementId();
    expected.append(*(firstIsLower ? first : second)->GetObjects());
    expected.append(*(firstIsLower ? second : first)->GetObjects());
    AcDbObjectIdArray drawn{AcDbObjectId()};
    EXPECT_EQ(sheet->GetDrawnEntities(drawn, 7), 1);
    EXPECT_EQ(drawn, expected);

    EXPECT_EQ(sheet->GetGeosGeometry()->getEnvelopeInternal()->getArea(), 420.0 * 297.0);
    // Element entities are listed twice (scheme component and element) but move once.
    ASSERT_EQ(sheet->MoveTo({110, 220, 0}), 1);
    AcDbExtents extents;
    first->GetExtents(extents);
    EXPECT_EQ(extents.minPoint().x, 156.0);
    ASSERT_EQ(sheet->Mark(1, nullptr), 1);
    EXPECT_TRUE(acedScreen()->isHighlighted(drawn.last()) && acedScreen()->isHighlighted(drawn.first()));
    sheet->Mark(0, nullptr);
    EXPECT_FALSE(acedScreen()->isHighlighted(drawn.last()));
    EXPECT_EQ(sheet->DrawCheckMark(), 1);
    EXPECT_NE(sheet->GetXML().find(L"x=\"110\" y=\"220\" z=\"0\" width=\"420\" height=\"297\">"), std::wstring::npos);

    sheet->DeleteGraphics();
    for (const AcDbObjectId& id : drawn) EXPECT_TRUE(id.isErased());
}

// Two elements of one catalog item sharing number 1, a provider's valve (2) and an ignored
// element showing the valve's number: saved, listed by a fresh process and read by ezdxf.
TEST_F(InstanceTest, ASheetSavedToDxfReadsBackFieldForFieldInAFreshProcessAndInEzdxf) {
    XimoGis::Testing::TempFolder folder;
    folder.Write("workspace.xml", "<workspace name=\"Round trip\"/>");
    std::wstring error;
    auto* systems = XimoGis::System::CSystemManager::Instance();
    ASSERT_TRUE(systems->OpenWorkspace(folder.Text(), error, true) && systems->CreateSystem(1, L"V", 8, {}, error));
    systems->CloseWorkspace();
    const auto sheet = DrawSheet(&water, {1000.5, 2000.25, 0});
    AddElement(*sheet, &water, L"{CAT-TEE}", L"", 50, 50);
    AddElement(*sheet, &water, L"{CAT-TEE}", L"", 80, 50);
    const auto valve = AddElement(*sheet, &water, L"{CAT-VALVE}", L"PIPE_FITTINGS", 110, 50);
    const auto ignored = AddElement(*sheet, &water, L"{CAT-FLANGE}", L"", 140, 50);
    ignored->SetElementAsIgnored(1, valve->GetElementId().c_str());
    ignored->SetElementNumber(-1);
    const std::string file = (folder.Path() / "sheet.dxf").string();
    ASSERT_EQ(database->dxfOut(acutUtf8ToWchar(file).c_str(), &error), Acad::eOk) << error;

    const auto listed = aschtest::run("list '" + file + "' --workspace '" + folder.Path().string() + "' --json");
    ASSERT_EQ(listed.code, 0) << listed.err;
    rapidjson::Document json;
    json.Parse(listed.out.c_str());
    ASSERT_TRUE(json.IsObject() && json["schemes"].Size() == 1u && json["problems"].Size() == 0u) << listed.out;
    const auto& scheme = json["schemes"][0];
    EXPECT_EQ(scheme["id"].GetString(), Utf8(sheet->GetInstanceId()));
    EXPECT_STREQ(scheme["definition"].GetString(), "{DEF-A3}");
    EXPECT_STREQ(scheme["node"].GetString(), "{NODE-7}");
    EXPECT_EQ(scheme["basePoint"][0].GetDouble(), 1000.5);
    EXPECT_EQ(scheme["basePoint"][1].GetDouble(), 2000.25);
    EXPECT_EQ(scheme["width"].GetDouble(), 420.0);
    EXPECT_EQ(scheme["height"].GetDouble(), 297.0);
    EXPECT_EQ(Hexes(scheme["generalEntities"]),
              Hexes({sheet->GetId(), sheet->GetSecondGeneralEntity(), sheet->GetThirdGeneralEntity()}));
    // The scheme component's entities come back under their elements.
    ASSERT_EQ(scheme["components"].Size(), 2u);
    EXPECT_EQ(Hexes(scheme["components"][0]["entities"]), Hexes(*sheet->GetDrawnEntitiesByComponent(L"00FRAME")));
    EXPECT_EQ(Hexes(scheme["components"][1]["entities"]), Hexes(*sheet->GetDrawnEntitiesByComponent(L"04BOM")));
    ASSERT_EQ(scheme["elements"].Size(), 4u);
    auto original = sheet->GetElementInstances().begin();
    for (const auto& element : scheme["elements"].GetArray()) {
        const CASElementInstance& expected = *(original++)->second;
        EXPECT_EQ(element["id"].GetString(), Utf8(expected.GetElementId()));
        EXPECT_EQ(element["catalog"].GetString(), Utf8(expected.GetCatalogId()));
        EXPECT_EQ(element["provider"].GetString(), Utf8(expected.GetTypeProviderId()));
        EXPECT_EQ(element["position"].GetInt(), expected.GetElementNumber());
        EXPECT_EQ(element["ignored"].GetBool(), expected.IsElementIgnored() == 1);
        EXPECT_EQ(element["referred"].GetString(), Utf8(expected.GetReferredElement()));
        EXPECT_EQ(element["dataHolder"].GetString(), Hex(expected.GetEntityHolder()));
        EXPECT_EQ(Hexes(element["entities"]), Hexes(*expected.GetObjects()));
    }
    EXPECT_EQ(ignored->GetElementNumber(), 2);

    if (std::system("/usr/bin/python3 -c 'import ezdxf' 2>/dev/null") != 0) GTEST_SKIP() << "no ezdxf";
    ASSERT_EQ(std::system(("/usr/bin/python3 '" XIMO_SOURCE_DIR "/tests/host/dxf/dxf_inspect.py' '" + file + "' > '" +
                           file + ".json'").c_str()), 0);
    rapidjson::Document dxf;
    dxf.Parse(folder.Read("sheet.dxf.json").c_str());
    ASSERT_TRUE(dxf.IsObject() && dxf["errors"].Size() == 0u);
    // "NAME=value" for each attribute that ezdxf reads on the entity.
    const auto read = [&](AcDbObjectId id) {
        std::string found;
        for (const auto& app : dxf["xdata"][Hex(id).c_str()].GetArray()) {
            const auto& tags = app[1];
            for (rapidjson::SizeType i = 0; std::string(app[0].GetString()) == "XIMOGIS" && i < tags.Size(); i += 2) {
                const auto& value = tags[i + 1][1];
                found += std::string(tags[i][1].GetString()) + "=";
                found += value.IsString() ? value.GetString()
                         : value.IsInt()  ? std::to_string(value.GetInt())
                                          : Utf8(CDataBox(value.GetDouble()).AsString());
                found += " ";
            }
        }
        return found;
    };
    EXPECT_EQ(read(sheet->GetId()), "SYSTEM_ID=1 GUID=" + Utf8(sheet->GetGuid()) +
                                        " AS_DEFINITION_ID={DEF-A3} AS_INTERNAL_TAG=1 ENTITY_TYPE=256 "
                                        "AS_REF_NODE={NODE-7} AS_WIDTH=420 AS_HEIGHT=297 ");
    EXPECT_EQ(read(ignored->GetEntityHolder()),
              "AS_ELEMENT_DATAHOLDER=1 AS_ELEMENT_POSNUM=-1 AS_ELEMENT_IGNORE=1 AS_ELEMENT_ID=" +
                  Utf8(ignored->GetElementId()) + " AS_ELEMENT_TYPE_ID= AS_ELEMENT_CATALOG_ID={CAT-FLANGE} GUID=" +
                  Utf8(sheet->GetGuid()) + " ENTITY_TYPE=512 SYSTEM_ID=1 AS_INTERNAL_TAG=8 AS_COMPONENT_ID=01SCHEME "
                  "AS_ELEMENT_REFERRED=" + Utf8(valve->GetElementId()) + " ");
}
