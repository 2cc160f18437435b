#include "framework/config/CModuleConfiguration.h"

#include "framework/TempFolder.h"

#include <gtest/gtest.h>

using XimoGis::CModuleConfiguration;
using XimoGis::Testing::TempFolder;

namespace {

const char* const kWorkspace =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<workspace name=\"Demo\" language=\"en\">\n"
    "  <paths install=\"install\" support=\"support\" INSTALL=\"install\"/>\n"
    "  <log enabled=\"1\" threshold=\"4\" file=\"logs/ximo.log\"/>\n"
    "</workspace>\n";

class ModuleConfiguration : public ::testing::Test {
protected:
    void TearDown() override { config->Close(); }

    // Opens a workspace that must open; the folder's text with a trailing separator.
    std::wstring OpenGood(const TempFolder& folder, const char* xml = kWorkspace) {
        folder.Write("workspace.xml", xml);
        std::wstring error;
        EXPECT_TRUE(config->Open(folder.Text(), error)) << error;
        return folder.Text() + L"/";
    }

    CModuleConfiguration* config = CModuleConfiguration::Instance();
};

}  // namespace

TEST_F(ModuleConfiguration, WithoutWorkspaceShippedEnglishMessagesAndNoPaths) {
    EXPECT_FALSE(config->IsOpen());
    EXPECT_EQ(CModuleConfiguration::GetMsg(22021), L"Rotate");
    EXPECT_EQ(CModuleConfiguration::GetMsg(9977), L"Mirror");
    EXPECT_EQ(CModuleConfiguration::GetMsg(123456789), L"#123456789");
    EXPECT_EQ(CModuleConfiguration::GetPath(L"install"), L"");
    EXPECT_EQ(config->GetWorkspacePath(), L"");
    EXPECT_FALSE(config->GetLogSettings().enabled);
    EXPECT_EQ(config->GetLogSettings().threshold, 3);
}

TEST_F(ModuleConfiguration, OpenResolvesPathsAgainstWorkspaceWithTrailingSeparator) {
    TempFolder folder;
    const std::wstring ws = OpenGood(folder);
    EXPECT_TRUE(config->IsOpen());
    EXPECT_EQ(config->GetWorkspacePath(), ws);
    EXPECT_EQ(config->GetWorkspaceName(), L"Demo");
    EXPECT_EQ(CModuleConfiguration::GetPath(L"install"), ws + L"install/");
    EXPECT_EQ(CModuleConfiguration::GetPath(L"INSTALL"), ws + L"install/");
    EXPECT_EQ(CModuleConfiguration::GetPath(L"support"), ws + L"support/");
    EXPECT_EQ(CModuleConfiguration::GetPath(L"Support"), L"");
    EXPECT_EQ(CModuleConfiguration::GetPath(L"nothing"), L"");
    EXPECT_TRUE(config->GetLogSettings().enabled);
    EXPECT_EQ(config->GetLogSettings().threshold, 4);
    EXPECT_EQ(config->GetLogSettings().file, ws + L"logs/ximo.log");
}

TEST_F(ModuleConfiguration, AbsoluteAndParentPathsAreNormalised) {
    TempFolder folder;
    const std::string xml = "<workspace><paths install=\"/opt/ximo/\" support=\"./a/../shared\"/></workspace>";
    const std::wstring ws = OpenGood(folder, xml.c_str());
    EXPECT_EQ(CModuleConfiguration::GetPath(L"install"), L"/opt/ximo/");
    EXPECT_EQ(CModuleConfiguration::GetPath(L"support"), ws + L"shared/");
    EXPECT_FALSE(config->GetLogSettings().enabled);
}

TEST_F(ModuleConfiguration, CroatianWorkspaceLanguageSwitchAndClose) {
    TempFolder folder;
    OpenGood(folder, "<workspace language=\"hr\"><paths install=\"i\"/></workspace>");
    EXPECT_EQ(config->GetLanguage(), L"hr");
    EXPECT_EQ(CModuleConfiguration::GetMsg(22021), L"Rotiraj");
    EXPECT_EQ(CModuleConfiguration::GetMsg(9977), L"Zrcali");
    EXPECT_FALSE(config->SetLanguage(L"de"));
    EXPECT_EQ(config->GetLanguage(), L"hr");
    EXPECT_TRUE(config->SetLanguage(L"en"));
    EXPECT_EQ(CModuleConfiguration::GetMsg(22021), L"Rotate");
    EXPECT_EQ(CModuleConfiguration::GetMsg(4000000), L"#4000000");
    ASSERT_TRUE(config->SetLanguage(L"hr"));
    config->Close();
    EXPECT_FALSE(config->IsOpen());
    EXPECT_EQ(config->GetLanguage(), L"en");
    EXPECT_EQ(CModuleConfiguration::GetPath(L"install"), L"");
    EXPECT_EQ(CModuleConfiguration::GetMsg(22021), L"Rotate");
}

TEST_F(ModuleConfiguration, WorkspaceInstallFolderOverridesShippedTable) {
    TempFolder folder;
    folder.Write("install/messages/en.txt", "# own\n22021\tTurn\n");
    const std::wstring ws = OpenGood(folder);
    EXPECT_EQ(CModuleConfiguration::GetMsg(22021), L"Turn");
    EXPECT_EQ(CModuleConfiguration::GetMsg(9977), L"#9977");
    EXPECT_EQ(config->GetMessageFile(), ws + L"install/messages/en.txt");
    // No Croatian copy in the workspace: the shipped one is used.
    ASSERT_TRUE(config->SetLanguage(L"hr"));
    EXPECT_EQ(CModuleConfiguration::GetMsg(22021), L"Rotiraj");
}

TEST_F(ModuleConfiguration, FailedOpenNamesTheFileAndKeepsThePreviousConfiguration) {
    TempFolder good;
    const std::wstring ws = OpenGood(good, "<workspace language=\"hr\"><paths install=\"i\"/></workspace>");

    struct Case {
        const char* xml;
        const wchar_t* expected;
    };
    const Case cases[] = {
        {"<workspace>\n<paths install=\"i\">\n</workspace>", L"workspace.xml(3): malformed XML"},
        {"<settings/>", L"workspace.xml: the root element must be <workspace>, not <settings>"},
        {"<workspace language=\"de\"/>", L"workspace.xml: language 'de' is not supported"},
        {"<workspace><log enabled=\"yes\"/></workspace>", L"workspace.xml: <log enabled> must be 0 or 1"},
        {"<workspace><log threshold=\"-1\"/></workspace>", L"workspace.xml: <log threshold> must be"},
        {"<workspace><paths install=\"\"/></workspace>", L"workspace.xml: <paths install> is empty"},
    };
    for (const Case& c : cases) {
        TempFolder bad;
        bad.Write("workspace.xml", c.xml);
        std::wstring error;
        EXPECT_FALSE(config->Open(bad.Text(), error)) << c.xml;
        EXPECT_NE(error.find(bad.Text() + L"/" + c.expected), std::wstring::npos) << error.c_str();
        EXPECT_EQ(config->GetWorkspacePath(), ws);
        EXPECT_EQ(CModuleConfiguration::GetPath(L"install"), ws + L"i/");
        EXPECT_EQ(CModuleConfiguration::GetMsg(22021), L"Rotiraj");
    }

    TempFolder empty;
    std::wstring error;
    EXPECT_FALSE(config->Open(empty.Text(), error));
    EXPECT_EQ(error, empty.Text() + L"/workspace.xml: the file is missing or cannot be read");
    EXPECT_FALSE(config->Open(empty.Text() + L"/none", error));
    EXPECT_NE(error.find(L"does not exist"), std::wstring::npos);

    TempFolder badTable;
    badTable.Write("install/messages/en.txt", "1\tok\nbroken line\n");
    badTable.Write("workspace.xml", "<workspace><paths install=\"install\"/></workspace>");
    EXPECT_FALSE(config->Open(badTable.Text(), error));
    EXPECT_EQ(error, badTable.Text() + L"/install/messages/en.txt(2): expected a message number and a tab");
    EXPECT_EQ(config->GetWorkspacePath(), ws);
    EXPECT_EQ(config->GetLanguage(), L"hr");
}
