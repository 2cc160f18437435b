#include "framework/logging/CLogEngine.h"

#include "framework/TempFolder.h"
#include "framework/config/CModuleConfiguration.h"
#include "framework/utility/CTimeStamp.h"

#include <gtest/gtest.h>

using XimoGis::Logging::CLogEngine;
using XimoGis::Testing::TempFolder;
using XimoGis::Utility::CTimeStamp;

namespace {

class LogEngine : public ::testing::Test {
protected:
    void SetUp() override {
        engine->Configure(true, 3, folder.Text() + L"/logs/ximo.log");
        CTimeStamp::SetClock([] { return std::wstring(L"2024-05-06 07:08:09.010"); });
    }
    void TearDown() override {
        CTimeStamp::SetClock(nullptr);
        engine->Configure(false, 3, L"");
    }
    std::string Log() const { return folder.Read("logs/ximo.log"); }

    TempFolder folder;
    CLogEngine* engine = CLogEngine::Instance();
};

}  // namespace

TEST_F(LogEngine, LinePrefixIsTimePaddedFileLineAndFunction) {
    engine->Write(L"AssemblySchemes_Editor", 42, L"ReMove", 3, L"ELEMID: 7 - RE-MOVE OK!");
    engine->Write(L"A", 123456, L"XimoGis::AssemblySchemes::CASEditor::Draw", 1, L"\u010Dvor");
    EXPECT_EQ(Log(),
              "[2024-05-06 07:08:09.010] AssemblySchemes_Editor          (00042): [ReMove          ], "
              "ELEMID: 7 - RE-MOVE OK!\n"
              "[2024-05-06 07:08:09.010] A                               (123456): "
              "[XimoGis::AssemblySchemes::CASEditor::Draw], \xC4\x8Dvor\n");
}

TEST_F(LogEngine, NothingWrittenWhenOffOrAboveThreshold) {
    engine->Write(L"F", 1, L"f", 4, L"above");
    engine->SetLoggingOn(false);
    engine->Write(L"F", 2, L"f", 1, L"off");
    EXPECT_EQ(Log(), "");
    engine->SetLoggingOn(true);
    engine->SetThreshold(5);
    engine->Write(L"F", 3, L"f", 4, L"now");
    EXPECT_NE(Log().find("], now\n"), std::string::npos);
}

TEST_F(LogEngine, WorkspaceLogSettingsConfigureTheEngine) {
    TempFolder ws;
    ws.Write("workspace.xml", "<workspace><log enabled=\"1\" threshold=\"2\" file=\"out/trace.log\"/></workspace>");
    std::wstring error;
    auto* config = XimoGis::CModuleConfiguration::Instance();
    ASSERT_TRUE(config->Open(ws.Text(), error)) << error;
    EXPECT_EQ(engine->GetThreshold(), 2);
    engine->Write(L"F", 9, L"f", 2, L"kept");
    EXPECT_NE(ws.Read("out/trace.log").find("], kept\n"), std::string::npos);
    config->Close();
    EXPECT_FALSE(engine->IsLoggingOn());
    EXPECT_EQ(engine->GetThreshold(), 3);
}
