#include "module/instances/CASInstance.h"

#include "apps/asch/AschTestSupport.h"
#include "framework/TempFolder.h"
#include "module/instances/CASInstanceStorage.h"
#include "module/instances/SheetFixture.h"
#include "module/manager/CASManagerTestAccess.h"

#include "framework/data/CDDCache.h"
#include "framework/data/CDataRW.h"
#include "framework/systems/CSystemManager.h"
#include "host/base/AcString.h"
#include "host/database/acdbOpenObject.h"
#include "host/entities/AcDbPoint.h"
#include "host/input/AcEdScreen.h"

#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <cstdio>
#include <cstdlib>
#include <map>

using namespace XimoGis::AssemblySchemes;
using XimoGis::Data::CDataBox;
using XimoGis::Data::CDataRW;
using XimoGis::Data::CDDCache;

namespace {

using InstanceTest = Testing::SheetFixture;

// The names of the framework attributes on an entity, in stored order.
std::vector<std::wstring> Names(AcDbObjectId id) {
    AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForRead);
    std::vector<std::wstring> names;
    if (const AcDbXDataApp* data = entity->xDataFor(CDataRW::kApplication)) {
        for (std::size_t i = 0; i < data->values.size(); i += 2) names.push_back(std::get<std::wstring>(data->values[i].value));
    }
    return names;
}

std::wstring Name(int attributeId) { return CDDCache::GetAttributeName(attributeId); }

// Hears element deletions and looks at the sheet while it does.
class DeletionProbe : public IASComponentInterface {
public:
    DeletionProbe() : IASComponentInterface(L"00PROBE", eASComponentNone, 0, 0, L"", 0, L"") {}
    void OnBeforeASElementDeleted(CASInstance* sheet, CASDefinition*, CASElementInstance* element) override {
        stillOnSheet = sheet->GetElementInstanceById(element->GetElementId().c_str()).get() == element;
        firstEntityErased = element->GetObjects()->first().isErased();
        ++heard;
    }
    int heard = 0;
    bool stillOnSheet = false;
    bool firstEntityErased = true;
};

std::string Hex(AcDbObjectId id) {
    char text[16];
    std::snprintf(text, sizeof text, "%X", static_cast<unsigned>(id.handle()));
    return id.isNull() ? std::string() : text;
}

std::vector<std::string> Hexes(const AcDbObjectIdArray& ids) {
    std::vector<std::string> hexes;
    for (const AcDbObjectId& id : ids) hexes.push_back(Hex(id));
    return hexes;
}

std::vector<std::string> Strings(const rapidjson::Value& array) {
    std::vector<std::string> strings;
    for (const auto& item : array.GetArray()) strings.push_back(item.GetString());
    return strings;
}

std::string Utf8(const std::wstring& text) { return acutWcharToUtf8(text); }

}  // namespace

TEST_F(InstanceTest, SerializingWritesEachKindOfEntityItsAttributesInOrder) {
    const auto sheet = DrawSheet(&water, {10, 20, 0});
    const auto element = AddElement(*sheet, &water, L"{CAT-TEE}", L"", 100, 100);
    const std::vector<std::wstring> general = {Name(CDDCache::GetSystemId()),      Name(CDDCache::GetGuid()),
                                               Name(CDDCache::GetASDefinitionId()), Name(CDDCache::GetASInternalTag()),
                                               Name(CDDCache::GetEntityType()),     Name(CDDCache::GetASRefNode()),
                                               Name(CDDCache::GetASWidth()),        Name(CDDCache::GetASHeight())};
    EXPECT_EQ(Names(sheet->GetId()), general);
    CDataBox value;
    ASSERT_TRUE(CDataRW::Read(sheet->GetThirdGeneralEntity(), CDDCache::GetASInternalTag(), value));
    EXPECT_EQ(value, CDataBox(4));
    ASSERT_TRUE(CDataRW::Read(sheet->GetId(), CDDCache::GetGuid(), value));
    EXPECT_EQ(value, CDataBox(sheet->GetInstanceId()));

    // The frame stamps its entities with the sheet type; the scheme component does not, so that
    // the element entities it lists keep theirs.
    const std::vector<std::wstring> stamped = {Name(CDDCache::GetSystemId()), Name(CDDCache::GetGuid()),
                                               Name(CDDCache::GetASInternalTag()), Name(CDDCache::GetASComponentId()),
                                               Name(CDDCache::GetEntityType())};
    EXPECT_EQ(Names(sheet->GetDrawnEntitiesByComponent(L"00FRAME")->first()), stamped);
    const AcDbObjectId line = element->GetObjects()->last();
    ASSERT_TRUE(CDataRW::Read(line, CDDCache::GetEntityType(), value));
    EXPECT_EQ(value, CDataBox(512));
    EXPECT_EQ(Names(line), (std::vector<std::wstring>{L"AS_ELEMENT_POSNUM", Name(CDDCache::GetASElementIgnore()),
                                                      Name(CDDCache::GetASElementId()), Name(CDDCache::GetASElementTypeId()),
                                                      Name(CDDCache::GetASElementCatalogId()), Name(CDDCache::GetGuid()),
                                                      Name(CDDCache::GetEntityType()), Name(CDDCache::GetSystemId()),
                                                      Name(CDDCache::GetASInternalTag()),
                                                      Name(CDDCache::GetASComponentId())}));

    // No node, no ASRefNode; no system, nothing written.
    const auto bare = DrawSheet(&water, {500, 20, 0}, L"");
    std::vector<std::wstring> withoutNode = general;
    withoutNode.erase(withoutNode.begin() + 5);
    EXPECT_EQ(Names(bare->GetId()), withoutNode);
    const auto unwritten = DrawSheet(nullptr, {1000, 20, 0});
    EXPECT_TRUE(Names(unwritten->GetId()).empty());
    EXPECT_TRUE(Names(unwritten->GetDrawnEntitiesByComponent(L"04BOM")->first()).empty());
}

TEST_F(InstanceTest, GeneralDataComesOnceFromTheFirstGeneralEntityThatHasIt) {
    const auto drawn = DrawSheet(&water, {10, 20, 5});
    for (int attribute : {CDDCache::GetASDefinitionId(), CDDCache::GetASRefNode(), CDDCache::GetASWidth(),
                          CDDCache::GetASHeight()})
        ASSERT_TRUE(CDataRW::Write(drawn->GetId(), attribute, CDataBox()));
    CDataRW::Write(drawn->GetSecondGeneralEntity(), CDDCache::GetASDefinitionId(), L"{FROM-2}");
    CDataRW::Write(drawn->GetThirdGeneralEntity(), CDDCache::GetASDefinitionId(), L"{FROM-4}");
    CDataRW::Write(drawn->GetThirdGeneralEntity(), CDDCache::GetASWidth(), 1.0);

    CASInstance sheet;
    sheet.SetGuid(drawn->GetGuid());
    for (const AcDbObjectId id : {drawn->GetId(), drawn->GetSecondGeneralEntity(), drawn->GetThirdGeneralEntity()}) {
        XimoGis::CXimoCEntityPtr entity(id, AcDb::kForRead);
        sheet.DeserializeEntity(entity, XimoGis::etAssemblyScheme, &water);
    }
    EXPECT_EQ(sheet.GetDefinitionId(), L"{FROM-2}");
    EXPECT_EQ(sheet.GetRefNode(), L"{NODE-7}");
    EXPECT_EQ(sheet.GetWidth(), 420.0);
    AcGePoint3d base;
    sheet.GetBasePoint(base);
    EXPECT_EQ(base, AcGePoint3d(10, 20, 5));
    EXPECT_EQ(sheet.GetId(), drawn->GetId());
    EXPECT_EQ(sheet.GetThirdGeneralEntity(), drawn->GetThirdGeneralEntity());
    EXPECT_TRUE(sheet.HasGeneralData());
}

TEST_F(InstanceTest, ElementsOfOneCatalogItemShareANumberAndOthersFollowTheLargest) {
    const auto sheet = DrawSheet(&water, {0, 0, 0});
    EXPECT_EQ(sheet->GetMaxPositionNumber(), 0);
    const auto tee = AddElement(*sheet, &water, L"{CAT-TEE}", L"", 50, 50);
    EXPECT_EQ(tee->GetElementNumber(), 1);
    EXPECT_EQ(tee->GetGuid(), sheet->GetGuid());
    EXPECT_EQ(tee->GetSchemeInstance(), sheet.get());
    const auto secondTee = AddElement(*sheet, &water, L"{CAT-TEE}", L"", 80, 50);
    EXPECT_EQ(secondTee->GetElementNumber(), 1);
    const auto valve = AddElement(*sheet, &water, L"{CAT-VALVE}", L"", 110, 50);
    EXPECT_EQ(valve->GetElementNumber(), 2);
    valve->SetElementNumber(7);
    EXPECT_EQ(AddElement(*sheet, &water, L"{cat-valve}", L"PIPES", 140, 50)->GetElementNumber(), 8);
    EXPECT_EQ(AddElement(*sheet, &water, L"{CAT-VALVE}", L"", 170, 50)->GetElementNumber(), 7);
    EXPECT_EQ(sheet->GetMaxPositionNumber(), 8);
    EXPECT_EQ(sheet->GetElementInstanceById(valve->GetElementId().c_str()), valve);
    EXPECT_FALSE(sheet->GetElementInstanceById(L"{NONE}"));
}

TEST_F(InstanceTest, RemovalTellsTheComponentsFirstAndErasesOnlyWhenAsked) {
    const auto sheet = DrawSheet(&water, {0, 0, 0});
    CASInstance empty;
    EXPECT_EQ(empty.RemoveElementInstance(boost::make_shared<CASElementInstance>(), 1), 0);
    const auto kept = AddElement(*sheet, &water, L"{CAT-A}", L"", 50, 50);
    const auto dropped = AddElement(*sheet, &water, L"{CAT-B}", L"", 80, 50);
    const auto erased = AddElement(*sheet, &water, L"{CAT-C}", L"", 110, 50);

    auto probe = boost::make_shared<DeletionProbe>();
    auto& components = CASManagerTestAccess::Components();
    const auto saved = components;
    components[probe->GetId()] = probe;
    EXPECT_EQ(sheet->RemoveElementInstance(nullptr, 1), 0);
    // Another object with the same id is not this sheet's element.
    auto lookalike = boost::make_shared<CASElementInstance>();
    lookalike->SetElementId(kept->GetElementId().c_str());
    EXPECT_EQ(sheet->RemoveElementInstance(lookalike, 1), 1);
    EXPECT_EQ(probe->heard, 0);

    EXPECT_EQ(sheet->RemoveElementInstance(dropped, 0), 1);
    EXPECT_EQ(probe->heard, 1);
    EXPECT_TRUE(probe->stillOnSheet);
    EXPECT_FALSE(sheet->GetElementInstanceById(dropped->GetElementId().c_str()));
    EXPECT_FALSE(dropped->GetObjects()->first().isErased());

    EXPECT_EQ(sheet->RemoveElementInstance(erased, 1), 1);
    components = saved;
    EXPECT_EQ(probe->heard, 2);
    EXPECT_TRUE(probe->stillOnSheet);
    EXPECT_FALSE(probe->firstEntityErased);
    for (const AcDbObjectId& id : *erased->GetObjects()) EXPECT_TRUE(id.isErased());
    EXPECT_EQ(sheet->GetElementInstances().size(), 1u);
}

TEST_F(InstanceTest, DrawnEntitiesComeInTheirOrderAndDeletingTheGraphicsErasesThemAll) {
    const auto sheet = DrawSheet(&water, {0, 0, 0});
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
    EXPECT_EQ(sheet->GetDrawnEntitiesByComponent(L"05TEXT"), nullptr);

    sheet->DeleteGraphics();
    for (const AcDbObjectId& id : drawn) EXPECT_TRUE(id.isErased());
}

TEST_F(InstanceTest, TheSheetIsARectangleThatMovesAndHighlightsAsAWhole) {
    const auto sheet = DrawSheet(&water, {10, 20, 0});
    const auto element = AddElement(*sheet, &water, L"{CAT-A}", L"", 50, 50);
    const auto outline = sheet->GetGeosGeometry();
    ASSERT_TRUE(outline);
    EXPECT_EQ(outline->getArea(), 420.0 * 297.0);
    EXPECT_EQ(outline->getEnvelopeInternal()->getMinX(), 10.0);
    EXPECT_EQ(outline->getEnvelopeInternal()->getMaxY(), 317.0);
    EXPECT_FALSE(CASInstance().GetGeosGeometry());

    // The element's entities are listed twice (scheme component and element) but move once.
    ASSERT_EQ(sheet->MoveTo({110, 220, 0}), 1);
    AcGePoint3d base;
    sheet->GetBasePoint(base);
    EXPECT_EQ(base, AcGePoint3d(110, 220, 0));
    AcDbObjectPointer<AcDbPoint> point(sheet->GetId(), AcDb::kForRead);
    EXPECT_EQ(point->position(), AcGePoint3d(110, 220, 0));
    point.close();
    AcDbExtents extents;
    ASSERT_EQ(element->GetExtents(extents), 1);
    EXPECT_EQ(extents.minPoint().x, 156.0);
    EXPECT_EQ(extents.minPoint().y, 266.0);

    AcDbObjectIdArray ids;
    sheet->GetDrawnEntities(ids);
    ASSERT_EQ(sheet->Mark(1, nullptr), 1);
    for (const AcDbObjectId& id : ids) EXPECT_TRUE(acedScreen()->isHighlighted(id));
    sheet->Mark(0, nullptr);
    for (const AcDbObjectId& id : ids) EXPECT_FALSE(acedScreen()->isHighlighted(id));

    const std::size_t before = database->numObjects();
    EXPECT_EQ(sheet->DrawCheckMark(), 1);
    EXPECT_EQ(database->numObjects(), before + 1);
    const std::wstring xml = sheet->GetXML();
    EXPECT_NE(xml.find(L"<asInstance guid=\"" + sheet->GetGuid() + L"\" definition=\"{DEF-A3}\" node=\"{NODE-7}\" "
                       L"x=\"110\" y=\"220\" z=\"0\" width=\"420\" height=\"297\">"),
              std::wstring::npos)
        << xml;
    EXPECT_NE(xml.find(L"<component id=\"01SCHEME\" entities=\"2\"/>"), std::wstring::npos) << xml;
    EXPECT_NE(xml.find(L"<asElement id=\"" + element->GetElementId() + L"\" catalog=\"{CAT-A}\""), std::wstring::npos);
}

// A sheet with component entities and four elements: two of one catalog item sharing number 1,
// a valve drawn by a provider (2) and an ignored element showing the valve's number.
TEST_F(InstanceTest, ASheetSavedToDxfReadsBackFieldForFieldInAFreshProcessAndInEzdxf) {
    XimoGis::Testing::TempFolder folder;
    folder.Write("workspace.xml", "<workspace name=\"Round trip\" language=\"en\"/>");
    std::wstring error;
    auto* systems = XimoGis::System::CSystemManager::Instance();
    ASSERT_TRUE(systems->OpenWorkspace(folder.Text(), error, true)) << error;
    ASSERT_TRUE(systems->CreateSystem(1, L"Vodovod", 8, {}, error)) << error;
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
    EXPECT_EQ(listed.err, "");
    rapidjson::Document json;
    json.Parse(listed.out.c_str());
    ASSERT_TRUE(json.IsObject()) << listed.out;
    ASSERT_EQ(json["schemes"].Size(), 1u);
    EXPECT_EQ(json["problems"].Size(), 0u);
    const auto& scheme = json["schemes"][0];
    EXPECT_EQ(scheme["id"].GetString(), Utf8(sheet->GetInstanceId()));
    EXPECT_STREQ(scheme["definition"].GetString(), "{DEF-A3}");
    EXPECT_STREQ(scheme["node"].GetString(), "{NODE-7}");
    EXPECT_EQ(scheme["basePoint"][0].GetDouble(), 1000.5);
    EXPECT_EQ(scheme["basePoint"][1].GetDouble(), 2000.25);
    EXPECT_EQ(scheme["width"].GetDouble(), 420.0);
    EXPECT_EQ(scheme["height"].GetDouble(), 297.0);
    EXPECT_EQ(Strings(scheme["generalEntities"]),
              Hexes({sheet->GetId(), sheet->GetSecondGeneralEntity(), sheet->GetThirdGeneralEntity()}));
    // The element entities listed under the scheme component come back under their elements.
    std::map<std::string, std::vector<std::string>> components;
    for (const auto& component : scheme["components"].GetArray())
        components[component["id"].GetString()] = Strings(component["entities"]);
    EXPECT_EQ(components, (std::map<std::string, std::vector<std::string>>{
                              {"00FRAME", Hexes(*sheet->GetDrawnEntitiesByComponent(L"00FRAME"))},
                              {"04BOM", Hexes(*sheet->GetDrawnEntitiesByComponent(L"04BOM"))}}));
    ASSERT_EQ(scheme["elements"].Size(), 4u);
    auto expected = sheet->GetElementInstances().begin();
    for (const auto& element : scheme["elements"].GetArray()) {
        const CASElementInstance& original = *(expected++)->second;
        SCOPED_TRACE(Utf8(original.GetCatalogId()));
        EXPECT_EQ(element["id"].GetString(), Utf8(original.GetElementId()));
        EXPECT_EQ(element["catalog"].GetString(), Utf8(original.GetCatalogId()));
        EXPECT_EQ(element["provider"].GetString(), Utf8(original.GetTypeProviderId()));
        EXPECT_EQ(element["position"].GetInt(), original.GetElementNumber());
        EXPECT_EQ(element["ignored"].GetBool(), original.IsElementIgnored() == 1);
        EXPECT_EQ(element["referred"].GetString(), Utf8(original.GetReferredElement()));
        EXPECT_EQ(element["dataHolder"].GetString(), Hex(original.GetEntityHolder()));
        EXPECT_EQ(Strings(element["entities"]), Hexes(*original.GetObjects()));
    }
    EXPECT_EQ(valve->GetElementNumber(), 2);
    EXPECT_EQ(ignored->GetElementNumber(), 2);

    if (std::system("/usr/bin/python3 -c 'import ezdxf' 2>/dev/null") != 0)
        GTEST_SKIP() << "ezdxf is not installed for /usr/bin/python3";
    const std::string inspected = (folder.Path() / "xdata.json").string();
    ASSERT_EQ(std::system(("/usr/bin/python3 '" XIMO_SOURCE_DIR "/tests/host/dxf/dxf_inspect.py' '" + file + "' > '" +
                           inspected + "'")
                              .c_str()),
              0);
    rapidjson::Document dxf;
    dxf.Parse(folder.Read("xdata.json").c_str());
    ASSERT_TRUE(dxf.IsObject() && dxf["errors"].Size() == 0u);
    // The attributes of an entity as ezdxf reads them: name -> value text.
    const auto attributes = [&](AcDbObjectId id) {
        std::map<std::string, std::string> found;
        for (const auto& app : dxf["xdata"][Hex(id).c_str()].GetArray()) {
            if (std::string(app[0].GetString()) != "XIMOGIS") continue;
            const auto& tags = app[1];
            for (rapidjson::SizeType i = 0; i + 1 < tags.Size(); i += 2) {
                const auto& value = tags[i + 1][1];
                found[tags[i][1].GetString()] = value.IsString() ? value.GetString()
                                                : value.IsInt()  ? std::to_string(value.GetInt())
                                                                 : Utf8(CDataBox(value.GetDouble()).AsString());
            }
        }
        return found;
    };
    const auto general = attributes(sheet->GetId());
    EXPECT_EQ(general.at("GUID"), Utf8(sheet->GetGuid()));
    EXPECT_EQ(general.at("AS_DEFINITION_ID"), "{DEF-A3}");
    EXPECT_EQ(general.at("AS_INTERNAL_TAG"), "1");
    EXPECT_EQ(general.at("ENTITY_TYPE"), "256");
    EXPECT_EQ(general.at("AS_WIDTH"), "420");
    const auto holder = attributes(ignored->GetEntityHolder());
    EXPECT_EQ(holder.at("AS_ELEMENT_ID"), Utf8(ignored->GetElementId()));
    EXPECT_EQ(holder.at("AS_ELEMENT_CATALOG_ID"), "{CAT-FLANGE}");
    EXPECT_EQ(holder.at("AS_ELEMENT_DATAHOLDER"), "1");
    EXPECT_EQ(holder.at("AS_ELEMENT_IGNORE"), "1");
    EXPECT_EQ(holder.at("AS_ELEMENT_POSNUM"), "-1");
    EXPECT_EQ(holder.at("AS_ELEMENT_REFERRED"), Utf8(valve->GetElementId()));
    EXPECT_EQ(holder.at("ENTITY_TYPE"), "512");
    EXPECT_EQ(attributes(valve->GetObjects()->last()).at("AS_ELEMENT_TYPE_ID"), "PIPE_FITTINGS");
}
