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

class GisSystemTest : public ::testing::Test {
protected:
    TempFolder folder;
    std::wstring error;
    std::wstring xml;
    CGisSystem system{
        3,
        L"Vodovod",
        8,
        {CGisSystemLayer(L"SCHEME", L"AS_SCHEME", 7, L"Continuous"), CGisSystemLayer(L"04BOM", L"AS_BOM", 3, L"DASHED"),
         CGisSystemLayer(L"01CMMNT", L"AS_COMMENTS", 2, L"NO_SUCH_LINETYPE")},
        folder.Text()};
};

}  // namespace

TEST_F(GisSystemTest, LayersAreFoundByExactReference) {
    ASSERT_NE(system.GetLayerByReference(L"04BOM"), nullptr);
    EXPECT_EQ(*system.GetLayerByReference(L"04BOM"), CGisSystemLayer(L"04BOM", L"AS_BOM", 3, L"DASHED"));
    EXPECT_EQ(system.GetLayerByReference(L"scheme"), nullptr);
    EXPECT_EQ(system.GetLayerByReference(L"05TEXT"), nullptr);
    EXPECT_EQ(system.GetLayerByReference(nullptr), nullptr);
}

TEST_F(GisSystemTest, SubDocumentsAreUtf8FilesInTheSystemsFolder) {
    EXPECT_EQ(std::filesystem::path(system.GetSubXMLPath(L"AS")), folder.Path() / "systems" / "3" / "AS.xml");
    EXPECT_FALSE(system.GetSubXMLByReferenceId(L"AS", xml, error));
    EXPECT_NE(error.find(L"\"" + system.GetSubXMLPath(L"AS") + L"\" does not exist"), std::wstring::npos) << error;

    ASSERT_TRUE(system.SetSubXMLByReferenceId(L"AS", L"<schemes name=\"Šaht\"/>", error)) << error;
    EXPECT_EQ(folder.Read("systems/3/AS.xml"),
              "<schemes name=\"\xC5\xA0"
              "aht\"/>");
    ASSERT_TRUE(system.GetSubXMLByReferenceId(L"AS", xml, error)) << error;
    EXPECT_EQ(xml, L"<schemes name=\"Šaht\"/>");

    folder.Write("systems/3/BOM.xml", "\xEF\xBB\xBF<schemes/>");
    ASSERT_TRUE(system.GetSubXMLByReferenceId(L"BOM", xml));
    EXPECT_EQ(xml, L"<schemes/>");
    folder.Write("systems/3/BAD.xml", "<schemes name=\"\xC0\xFF\"/>");
    EXPECT_FALSE(system.GetSubXMLByReferenceId(L"BAD", xml, error));
    EXPECT_NE(error.find(L"not UTF-8"), std::wstring::npos) << error;
    EXPECT_TRUE(xml.empty());
}

TEST_F(GisSystemTest, ReferenceIdsCannotLeaveTheSystemFolder) {
    for (const wchar_t* bad : {L"", L"../AS", L"a/b", L"a.b", L"Č"}) {
        EXPECT_TRUE(system.GetSubXMLPath(bad).empty()) << bad;
        EXPECT_FALSE(system.SetSubXMLByReferenceId(bad, L"<x/>", error)) << bad;
        EXPECT_NE(error.find(L"bad sub-document reference id"), std::wstring::npos);
    }
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "systems"));
    EXPECT_FALSE(system.GetSubXMLPath(L"AS_2-b").empty());
}

TEST_F(GisSystemTest, RecreatesItsLayersInTheDrawing) {
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

    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_FALSE(system.RecreateSystemlayers());
}
