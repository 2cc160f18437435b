#include "framework/workspace/CWsManager.h"

#include "framework/TempFolder.h"
#include "framework/config/CModuleConfiguration.h"
#include "framework/utility/CTimeStamp.h"

#include <gtest/gtest.h>

using XimoGis::CModuleConfiguration;
using XimoGis::Utility::CTimeStamp;
using XimoGis::Workspace::CWsManager;

namespace {

class WsManager : public ::testing::Test {
protected:
    void SetUp() override {
        CTimeStamp::SetClock([] { return std::wstring(L"2024-05-06 07:08:09.010"); });
        manager->ClearMessages();
    }
    void TearDown() override {
        CTimeStamp::SetClock(nullptr);
        CModuleConfiguration::Instance()->Close();
        manager->ClearMessages();
    }

    CWsManager* manager = CWsManager::Instance();
};

}  // namespace

TEST_F(WsManager, AppendsOneLinePerMessageToTheWorkspaceLog) {
    XimoGis::Testing::TempFolder ws;
    ws.Write("workspace.xml", "<workspace/>");
    std::wstring error;
    ASSERT_TRUE(CModuleConfiguration::Instance()->Open(ws.Text(), error)) << error;
    EXPECT_EQ(CWsManager::GetMessageLogFile(), ws.Text() + L"/logs/messages.log");

    EXPECT_TRUE(CWsManager::LogMessage(4, L"\u010Cvor nema okno: 'N-1'", L"{0F8FAD5B-D9CB-469F-A165-70867728950E}"));
    EXPECT_TRUE(CWsManager::LogMessage(2, L"two\nlines\tand C:\\path"));
    EXPECT_EQ(ws.Read("logs/messages.log"),
              "2024-05-06 07:08:09.010\t4\t\xC4\x8Cvor nema okno: 'N-1'\t{0F8FAD5B-D9CB-469F-A165-70867728950E}\n"
              "2024-05-06 07:08:09.010\t2\ttwo\\nlines\\tand C:\\\\path\t\n");

    const auto& messages = manager->GetMessages();
    ASSERT_EQ(messages.size(), 2u);
    EXPECT_EQ(messages[0].level, 4);
    EXPECT_EQ(messages[0].guid, L"{0F8FAD5B-D9CB-469F-A165-70867728950E}");
    EXPECT_EQ(messages[1].text, L"two\nlines\tand C:\\path");
    EXPECT_EQ(messages[1].time, L"2024-05-06 07:08:09.010");
}

TEST_F(WsManager, WithoutWorkspaceMessagesStayInMemoryOnly) {
    EXPECT_EQ(CWsManager::GetMessageLogFile(), L"");
    EXPECT_FALSE(CWsManager::LogMessage(4, L"kept", L"{G}"));
    ASSERT_EQ(manager->GetMessages().size(), 1u);
    EXPECT_EQ(manager->GetMessages()[0].text, L"kept");
    manager->ClearMessages();
    EXPECT_TRUE(manager->GetMessages().empty());
}

TEST_F(WsManager, UnwritableLogIsReportedNotThrown) {
    XimoGis::Testing::TempFolder ws;
    ws.Write("workspace.xml", "<workspace/>");
    ws.Write("logs", "a file where the logs folder should be");
    std::wstring error;
    ASSERT_TRUE(CModuleConfiguration::Instance()->Open(ws.Text(), error)) << error;
    EXPECT_FALSE(CWsManager::LogMessage(4, L"lost on disk"));
    EXPECT_EQ(manager->GetMessages().size(), 1u);
}
