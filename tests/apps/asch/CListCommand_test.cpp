#include <gtest/gtest.h>

#include "apps/asch/AschTestSupport.h"
#include "module/instances/SheetFixture.h"

#include "framework/data/CDDCache.h"
#include "framework/data/CDataRW.h"
#include "framework/systems/CSystemManager.h"
#include "host/base/AcString.h"

#include <rapidjson/document.h>

#include <fstream>

using namespace XimoGis::AssemblySchemes;
using aschtest::run;

namespace {

// A workspace with a water system (1) and a sewer system (2), and a drawing saved into it.
class ListCommand : public Testing::SheetFixture {
protected:
    void SetUp() override {
        Testing::SheetFixture::SetUp();
        std::ofstream(folder / "workspace.xml") << "<workspace name=\"Test\" language=\"en\"/>";
        std::wstring error;
        auto* systems = XimoGis::System::CSystemManager::Instance();
        ASSERT_TRUE(systems->OpenWorkspace(folder.path().wstring(), error, true));
        ASSERT_TRUE(systems->CreateSystem(1, L"Vodovod", 8, {}, error));
        ASSERT_TRUE(systems->CreateSystem(2, L"Kanalizacija", 8, {}, error));
        systems->CloseWorkspace();
    }
    void Save() {
        std::wstring error;
        ASSERT_EQ(database->dxfOut(acutUtf8ToWchar(drawing).c_str(), &error), Acad::eOk) << error;
    }
    aschtest::Result List(const std::string& options = "") {
        return run("list '" + drawing + "' --workspace '" + folder.path().string() + "' " + options);
    }

    aschtest::TempFolder folder{"list"};
    std::string drawing = folder / "schemes.dxf";
};

std::string Utf8(const std::wstring& text) { return acutWcharToUtf8(text); }

}  // namespace

TEST_F(ListCommand, PrintsEachSheetWithItsElementsAndTakesOneSystemWhenAsked) {
    const auto sheet = DrawSheet(&water, {10, 20, 0});
    const auto tee = AddElement(*sheet, &water, L"{CAT-TEE}", L"", 50, 50);
    const auto valve = AddElement(*sheet, &water, L"{CAT-VALVE}", L"FITTINGS", 80, 50);
    valve->SetElementAsIgnored(1, tee->GetElementId().c_str());
    const auto sewerSheet = DrawSheet(&sewer, {500, 20, 0.5}, L"");
    Save();

    const auto all = List();
    ASSERT_EQ(all.code, 0) << all.err;
    EXPECT_EQ(all.err, "");
    const bool teeFirst = tee->GetElementId() < valve->GetElementId();
    const std::string teeRow = Utf8(tee->GetElementId()) + "  {CAT-TEE}    -         1    no\n";
    const std::string valveRow = Utf8(valve->GetElementId()) + "  {CAT-VALVE}  FITTINGS  1    yes\n";
    const std::string water = "scheme " + Utf8(sheet->GetGuid()) +
                              "\n  definition {DEF-A3}  node {NODE-7}\n  base point 10, 20, 0  size 420 x 297\n"
                              "  entities: 00FRAME 2, 04BOM 1\n  elements:\n    ID" +
                              std::string(38, ' ') + "CATALOG      PROVIDER  POS  IGNORED\n    " +
                              (teeFirst ? teeRow + "    " + valveRow : valveRow + "    " + teeRow);
    const std::string sewage = "scheme " + Utf8(sewerSheet->GetGuid()) +
                               "\n  definition {DEF-A3}  node -\n  base point 500, 20, 0.5  size 420 x 297\n"
                               "  entities: 00FRAME 2, 04BOM 1\n  elements: none\n";
    EXPECT_NE(all.out.find(water), std::string::npos) << all.out;
    EXPECT_NE(all.out.find(sewage), std::string::npos) << all.out;
    EXPECT_NE(all.out.find("2 scheme(s), 2 element(s)\n"), std::string::npos) << all.out;

    const auto sewerOnly = List("--system 2");
    ASSERT_EQ(sewerOnly.code, 0) << sewerOnly.err;
    EXPECT_EQ(sewerOnly.out, sewage + "1 scheme(s), 0 element(s)\n");
    rapidjson::Document json;
    json.Parse(List("--system 2 --json").out.c_str());
    ASSERT_TRUE(json.IsObject());
    EXPECT_EQ(json["system"].GetInt(), 2);
    EXPECT_EQ(json["drawing"].GetString(), drawing);
    ASSERT_EQ(json["schemes"].Size(), 1u);
    EXPECT_EQ(json["schemes"][0]["id"].GetString(), Utf8(sewerSheet->GetGuid()));
}

TEST_F(ListCommand, ADamagedDrawingIsListedAndWhatWasSkippedGoesToStandardError) {
    const auto sheet = DrawSheet(&water, {0, 0, 0});
    const AcDbObjectId bom = sheet->GetDrawnEntitiesByComponent(L"04BOM")->first();
    XimoGis::Data::CDataRW::Write(bom, XimoGis::Data::CDDCache::GetASComponentId(), L"99BOGUS");
    const AcDbObjectId frame = sheet->GetDrawnEntitiesByComponent(L"00FRAME")->first();
    XimoGis::Data::CDataRW::Write(frame, XimoGis::Data::CDDCache::GetGuid(), 42);
    Save();

    const auto listed = List("--json");
    ASSERT_EQ(listed.code, 0) << listed.err;
    const std::string bomHandle = Utf8(CASAudit::FormatHandle(bom.handle()));
    const std::string frameHandle = Utf8(CASAudit::FormatHandle(frame.handle()));
    // In drawing order: the frame line comes before the text.
    EXPECT_EQ(listed.err, "asch list: problem 1 WRONG_ATTRIBUTE_TYPE at entity " + frameHandle +
                              ": attribute GUID holds an integer (\"42\") where text belongs; read as absent\n"
                              "asch list: problem 2 MISSING_GUID at entity " + frameHandle +
                              ": entity of type 256 names no sheet (no Guid); skipped\n"
                              "asch list: problem 6 UNKNOWN_COMPONENT_ID at entity " + bomHandle +
                              ": component id \"99BOGUS\" on sheet " + Utf8(sheet->GetGuid()) +
                              " belongs to no component type; kept under that id\n");
    rapidjson::Document json;
    json.Parse(listed.out.c_str());
    ASSERT_TRUE(json.IsObject()) << listed.out;
    ASSERT_EQ(json["problems"].Size(), 3u);
    EXPECT_EQ(json["problems"][2]["code"].GetInt(), 6);
    EXPECT_STREQ(json["problems"][2]["name"].GetString(), "UNKNOWN_COMPONENT_ID");
    EXPECT_EQ(json["problems"][2]["handle"].GetString(), bomHandle);
    EXPECT_EQ(json["schemes"][0]["components"][1]["id"].GetString(), std::string("99BOGUS"));
}

TEST_F(ListCommand, NamesAMissingDrawingOrSystemAndWantsAWorkspace) {
    const auto missing = List();
    EXPECT_EQ(missing.code, 1);
    EXPECT_NE(missing.err.find("schemes.dxf"), std::string::npos) << missing.err;
    Save();
    const auto unknown = List("--system 9");
    EXPECT_EQ(unknown.code, 1);
    EXPECT_EQ(unknown.err, "asch list: the workspace has no system 9\n");
    EXPECT_EQ(run("list '" + drawing + "'").code, 2);
}
