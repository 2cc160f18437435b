#include <gtest/gtest.h>

#include "apps/asch/AschTestSupport.h"
#include "module/instances/SheetFixture.h"

#include "framework/data/CDDCache.h"
#include "framework/data/CDataRW.h"
#include "framework/systems/CSystemManager.h"
#include "host/base/AcString.h"

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
        ASSERT_TRUE(systems->CreateSystem(1, L"Vodovod", 8, {}, error) && systems->CreateSystem(2, L"K", 8, {}, error));
        systems->CloseWorkspace();
    }
    aschtest::Result List(const std::string& options = "") {
        return run("list '" + drawing + "' --workspace '" + folder.path().string() + "' " + options);
    }
    void Save() { ASSERT_EQ(database->dxfOut(acutUtf8ToWchar(drawing).c_str()), Acad::eOk); }

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
    const std::string teeRow = "    " + Utf8(tee->GetElementId()) + "  {CAT-TEE}    -         1    no\n";
    const std::string valveRow = "    " + Utf8(valve->GetElementId()) + "  {CAT-VALVE}  FITTINGS  1    yes\n";
    const bool teeFirst = tee->GetElementId() < valve->GetElementId();
    EXPECT_NE(all.out.find("scheme " + Utf8(sheet->GetGuid()) +
                           "\n  definition {DEF-A3}  node {NODE-7}\n  base point 10, 20, 0  size 420 x 297\n"
                           "  entities: 00FRAME 2, 04BOM 1\n  elements:\n    ID" + std::string(38, ' ') +
                           "CATALOG      PROVIDER  POS  IGNORED\n" +
                           (teeFirst ? teeRow + valveRow : valveRow + teeRow)),
              std::string::npos)
        << all.out;
    EXPECT_NE(all.out.find("2 scheme(s), 2 element(s)\n"), std::string::npos) << all.out;
    const auto sewage = List("--system 2");
    EXPECT_EQ(sewage.out, "scheme " + Utf8(sewerSheet->GetGuid()) +
                              "\n  definition {DEF-A3}  node -\n  base point 500, 20, 0.5  size 420 x 297\n"
                              "  entities: 00FRAME 2, 04BOM 1\n  elements: none\n1 scheme(s), 0 element(s)\n");
    EXPECT_NE(List("--system 2 --json").out.find("\"system\": 2,"), std::string::npos);
}

TEST_F(ListCommand, TellsWhatADamagedDrawingSkippedOnStandardErrorAndBadArgumentsFail) {
    const auto sheet = DrawSheet(&water, {0, 0, 0});
    const AcDbObjectId bom = sheet->GetDrawnEntitiesByComponent(L"04BOM")->first();
    XimoGis::Data::CDataRW::Write(bom, XimoGis::Data::CDDCache::GetASComponentId(), L"99BOGUS");
    EXPECT_NE(List().err.find("schemes.dxf"), std::string::npos);  // not saved yet
    Save();
    const auto listed = List("--json");
    ASSERT_EQ(listed.code, 0) << listed.err;
    EXPECT_EQ(listed.err, "asch list: problem 6 UNKNOWN_COMPONENT_ID at entity " +
                              Utf8(CASAudit::FormatHandle(bom.handle())) + ": component id \"99BOGUS\" on sheet " +
                              Utf8(sheet->GetGuid()) + " belongs to no component type; kept under that id\n");
    EXPECT_NE(listed.out.find("\"name\": \"UNKNOWN_COMPONENT_ID\","), std::string::npos) << listed.out;
    EXPECT_EQ(List("--system 9").err, "asch list: the workspace has no system 9\n");
    EXPECT_EQ(run("list '" + drawing + "'").code, 2);
}
