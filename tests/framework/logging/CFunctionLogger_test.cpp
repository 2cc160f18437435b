#include "framework/logging/CFunctionLogger.h"

#include "framework/TempFolder.h"
#include "framework/logging/CLogEngine.h"
#include "framework/utility/CTimeStamp.h"

#include <gtest/gtest.h>

#include <string>

using XimoGis::Logging::CFunctionLogger;
using XimoGis::Logging::CLogEngine;
using XimoGis::Utility::CTimeStamp;

namespace {

class FunctionLogger : public ::testing::Test {
protected:
    void SetUp() override {
        engine->Configure(true, 3, folder.Text() + L"/ximo.log");
        CTimeStamp::SetClock([] { return std::wstring(L"T"); });
    }
    void TearDown() override {
        CTimeStamp::SetClock(nullptr);
        engine->Configure(false, 3, L"");
    }
    std::string Log() const { return folder.Read("ximo.log"); }

    XimoGis::Testing::TempFolder folder;
    CLogEngine* engine = CLogEngine::Instance();
};

}  // namespace

TEST_F(FunctionLogger, WritesEnteringAndExitingAroundTheScope) {
    {
        CFunctionLogger logger(L"AssemblySchemes_Editor", 17, L"XimoGis::AssemblySchemes::CASEditor::Draw", 3);
        engine->Write(L"AssemblySchemes_Editor", 20, L"Marker", 3, L"Marker");
    }
    EXPECT_EQ(Log(),
              "[T] AssemblySchemes_Editor          (00017): [XimoGis::AssemblySchemes::CASEditor::Draw], "
              "Entering function \n"
              "[T] AssemblySchemes_Editor          (00020): [Marker          ], Marker\n"
              "[T] AssemblySchemes_Editor          (00017): [XimoGis::AssemblySchemes::CASEditor::Draw], "
              "Exiting function \n");
}

TEST_F(FunctionLogger, SilentWhenOffOrAboveThresholdAndMacroTakesItsLine) {
    { CFunctionLogger above(L"F", 1, L"f", 4); }
    engine->SetLoggingOn(false);
    { CFunctionLogger off(L"F", 2, L"f", 1); }
    EXPECT_EQ(Log(), "");
    engine->SetLoggingOn(true);
    const int line = __LINE__ + 1;
    { XIMO_FUNCTION_LOG(L"ASManager", L"f", 1); }
    const std::string number = std::to_string(100000 + line).substr(1);
    EXPECT_EQ(Log(), "[T] ASManager" + std::string(23, ' ') + "(" + number + "): [f" + std::string(15, ' ') +
                         "], Entering function \n[T] ASManager" + std::string(23, ' ') + "(" + number +
                         "): [f" + std::string(15, ' ') + "], Exiting function \n");
}

TEST_F(FunctionLogger, ExitIsWrittenEvenIfLoggingStopsInside) {
    {
        CFunctionLogger logger(L"F", 5, L"f", 3);
        engine->SetLoggingOn(false);
    }
    EXPECT_NE(Log().find("Exiting function \n"), std::string::npos);
}
