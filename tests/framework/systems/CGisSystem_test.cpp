#include "framework/systems/CGisSystem.h"

#include "framework/TempFolder.h"
#include "host/database/AcDbDatabase.h"
#include "host/database/acdbOpenObject.h"

#include <gtest/gtest.h>

#include <filesystem>

using XimoGis::System::CGisSystem;
using XimoGis::System::CGisSystemLayer;
using XimoGis::Testing::TempFolder;

namespace {

CGisSystem MakeSystem(const TempFolder& folder) {
    return CGisSystem(3, L"Vodovod", 8,
                      {CGisSystemLayer(L"SCHEME", L"AS_SCHEME", 7, L"Continuous"),
                       CGisSystemLayer(L"SCHEME_NP", L"AS_SCHEME_NP", 1, L"Continuous"),
                       CGisSystemLayer(L"04BOM", L"AS_BOM", 3, L"DASHED"),
                       CGisSystemLayer(L"01CMMNT", L"AS_COMMENTS", 2, L"NO_SUCH_LINETYPE")},
                      folder.Text());
}

}  // namespace

TEST(CGisSystem, LayersAreFoundByExactReference) {
    TempFolder folder;
    const CGisSystem system = MakeSystem(folder);
    const CGisSystemLayer* bom = system.GetLayerByReference(L"04BOM");
    ASSERT_NE(bom, nullptr);
    EXPECT_EQ(bom->GetLayerName(), L"AS_BOM");
    EXPECT_EQ(bom->GetColorIndex(), 3);
    EXPECT_EQ(bom->GetLinetypeName(), L"DASHED");
    EXPECT_EQ(system.GetLayerByReference(L"SCHEME_NP")->GetLayerName(), L"AS_SCHEME_NP");
    EXPECT_EQ(system.GetLayerByReference(L"scheme"), nullptr);
    EXPECT_EQ(system.GetLayerByReference(L"05TEXT"), nullptr);
    EXPECT_EQ(system.GetLayerByReference(nullptr), nullptr);
}

TEST(CGisSystem, SubDocumentsLiveInTheSystemsFolder) {
    TempFolder folder;
    const CGisSystem system = MakeSystem(folder);
    EXPECT_EQ(std::filesystem::path(system.GetSubXMLPath(L"AS")), folder.Path() / "systems" / "3" / "AS.xml");

    const std::wstring xml = L"<schemes version=\"1\"><asDefinition name=\"Šaht Ž\"/></schemes>";
    std::wstring error;
    ASSERT_TRUE(system.SetSubXMLByReferenceId(L"AS", xml, error)) << error;
    EXPECT_EQ(folder.Read("systems/3/AS.xml"), "<schemes version=\"1\"><asDefinition name=\"\xC5\xA0" "aht \xC5\xBD\"/></schemes>");
    std::wstring read;
    ASSERT_TRUE(system.GetSubXMLByReferenceId(L"AS", read, error)) << error;
    EXPECT_EQ(read, xml);

    ASSERT_TRUE(system.SetSubXMLByReferenceId(L"AS", L"<schemes/>", error)) << error;
    ASSERT_TRUE(system.GetSubXMLByReferenceId(L"AS", read));
    EXPECT_EQ(read, L"<schemes/>");
}

TEST(CGisSystem, ReadingReportsMissingAndUnreadableDocuments) {
    TempFolder folder;
    const CGisSystem system = MakeSystem(folder);
    std::wstring xml = L"stale";
    std::wstring error;
    EXPECT_FALSE(system.GetSubXMLByReferenceId(L"AS", xml, error));
    EXPECT_TRUE(xml.empty());
    EXPECT_NE(error.find(system.GetSubXMLPath(L"AS")), std::wstring::npos) << error;
    EXPECT_NE(error.find(L"does not exist"), std::wstring::npos) << error;

    folder.Write("systems/3/AS.xml", "<schemes name=\"\xC0\xFF\"/>");
    EXPECT_FALSE(system.GetSubXMLByReferenceId(L"AS", xml, error));
    EXPECT_NE(error.find(L"not UTF-8"), std::wstring::npos) << error;

    std::filesystem::create_directories(folder.Path() / "systems" / "3" / "DIR.xml");
    EXPECT_FALSE(system.GetSubXMLByReferenceId(L"DIR", xml, error));

    folder.Write("systems/3/BOM.xml", "\xEF\xBB\xBF<schemes/>");
    ASSERT_TRUE(system.GetSubXMLByReferenceId(L"BOM", xml, error)) << error;
    EXPECT_EQ(xml, L"<schemes/>");
}

TEST(CGisSystem, ReferenceIdsCannotLeaveTheSystemFolder) {
    TempFolder folder;
    const CGisSystem system = MakeSystem(folder);
    std::wstring error;
    for (const wchar_t* bad : {L"", L"../AS", L"a/b", L"a.b", L"Č"}) {
        EXPECT_TRUE(system.GetSubXMLPath(bad).empty()) << bad;
        EXPECT_FALSE(system.SetSubXMLByReferenceId(bad, L"<x/>", error)) << bad;
        EXPECT_NE(error.find(L"bad sub-document reference id"), std::wstring::npos);
    }
    EXPECT_TRUE(system.GetSubXMLPath(nullptr).empty());
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "systems"));
    EXPECT_FALSE(system.GetSubXMLPath(L"AS_2-b").empty());
}

TEST(CGisSystem, RecreatesItsLayersInTheDrawing) {
    TempFolder folder;
    CGisSystem system = MakeSystem(folder);
    AcDbDatabase database;
    AcDbObjectId bomId;
    ASSERT_EQ(database.addLayer(bomId, L"AS_BOM", 200, L"Continuous"), Acad::eOk);

    ASSERT_TRUE(system.RecreateSystemlayers(&database));
    for (const CGisSystemLayer& layer : system.GetLayers()) {
        AcDbObjectPointer<AcDbLayerTableRecord> record(database.layerId(layer.GetLayerName()), AcDb::kForRead);
        ASSERT_TRUE(record) << layer.GetLayerName();
        EXPECT_EQ(record->colorIndex(), layer.GetColorIndex()) << layer.GetLayerName();
    }
    EXPECT_EQ(database.layerId(L"AS_BOM"), bomId);
    AcDbObjectPointer<AcDbLayerTableRecord> bom(bomId, AcDb::kForRead);
    EXPECT_EQ(bom->linetypeObjectId(), database.linetypeId(L"DASHED"));
    AcDbObjectPointer<AcDbLayerTableRecord> comments(database.layerId(L"AS_COMMENTS"), AcDb::kForRead);
    EXPECT_EQ(comments->linetypeObjectId(), database.continuousLinetype());

    // Without a database of its own it works on the host's working drawing, if there is one.
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_FALSE(system.RecreateSystemlayers());
}
