#include "framework/logging/CFunctionLogger.h"

#include "framework/TempFolder.h"
#include "framework/utility/CTimeStamp.h"
#include "framework/logging/CLogEngine.h"

#include <gtest/gtest.h>

#include <cstdio>

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
        CFunctionLogger logger(L"AssemblySchemes_Editor", 17,
                               L"XimoGis::AssemblySchemes::CASEditor::EditElementPositions", 3);
        engine->Write(L"AssemblySchemes_Editor", 20, L"Marker", 3, L"Marker");
    }
    EXPECT_EQ(Log(),
              "[T] AssemblySchemes_Editor          (00017): "
              "[XimoGis::AssemblySchemes::CASEditor::EditElementPositions], Entering function \n"
              "[T] AssemblySchemes_Editor          (00020): [Marker          ], Marker\n"
              "[T] AssemblySchemes_Editor          (00017): "
              "[XimoGis::AssemblySchemes::CASEditor::EditElementPositions], Exiting function \n");
}

TEST_F(FunctionLogger, MacroTakesTheLineOfItsUse) {
    int line = 0;
    {
        line = __LINE__ + 1;
        XIMO_FUNCTION_LOG(L"ASManager", L"f", 1);
    }
    char expected[16];
    std::snprintf(expected, sizeof expected, "(%05d): [f ", line);
    const std::string log = Log();
    EXPECT_NE(log.find(expected), std::string::npos) << log;
    EXPECT_NE(log.find("Exiting function \n"), std::string::npos);
}

TEST_F(FunctionLogger, SilentWhenOffOrAboveThreshold) {
    { CFunctionLogger above(L"F", 1, L"f", 4); }
    engine->SetLoggingOn(false);
    { CFunctionLogger off(L"F", 2, L"f", 1); }
    EXPECT_EQ(Log(), "");
}

TEST_F(FunctionLogger, ExitIsWrittenEvenIfLoggingStopsInside) {
    {
        CFunctionLogger logger(L"F", 5, L"f", 3);
        engine->SetLoggingOn(false);
    }
    const std::string log = Log();
    EXPECT_NE(log.find("Entering function \n"), std::string::npos);
    EXPECT_NE(log.find("Exiting function \n"), std::string::npos);
}
