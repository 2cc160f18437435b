#include "module/manager/CASPluginLoader.h"

#include "framework/TempFolder.h"
#include "module/manager/PluginTestSupport.h"

#include <gtest/gtest.h>

#include <filesystem>

using namespace XimoGis::AssemblySchemes;
namespace fs = std::filesystem;

TEST(CASPluginLoader, OnlyNamesLikeXimoXAssemblyElementStarDotSoMatch) {
    EXPECT_TRUE(CASPluginLoader::IsPluginFileName(L"XimoXAssemblyElementFittings.so"));
    EXPECT_FALSE(CASPluginLoader::IsPluginFileName(L"libXimoXAssemblyElementFittings.so"));
    EXPECT_FALSE(CASPluginLoader::IsPluginFileName(L"XimoXAssemblyElementFittings.so.1"));
    EXPECT_FALSE(CASPluginLoader::IsPluginFileName(L"ximoxassemblyelementfittings.so"));
}

TEST(CASPluginLoader, LoadsTheGoodPluginAndSilentlySkipsTheRest) {
    Testing::FittingsRegistryCleanup cleanup;
    XimoGis::Testing::TempFolder folder;
    const fs::path install = folder.Path() / "install";
    fs::create_directories(install / "XimoXAssemblyElementFolder.so");  // a folder is no plug-in
    folder.Write("install/XimoXAssemblyElementText.so", "this is text, not a library\n");
    fs::copy_file(XIMO_NO_EXPORT_LIBRARY, install / "XimoXAssemblyElementNoExport.so");
    fs::copy_file(XIMO_FITTINGS_PLUGIN, install / "XimoXAssemblyElementFittings.so");
    EXPECT_EQ(CASPluginLoader::FindPluginFiles(install.wstring()).size(), 3u);

    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    EXPECT_EQ(CASPluginLoader::LoadPlugins(install.wstring() + L"/"), 1);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    std::vector<std::wstring> ids;
    for (const auto& [id, provider] : *CASManager::Instance()->GetAssemblyElementTypeRegistry()) {
        EXPECT_EQ(provider->GetProviderId(), id);
        ids.push_back(id);
    }
    EXPECT_EQ(ids, Testing::kFittingsProviderIds);
    EXPECT_EQ(CASManager::Instance()->GetAETypeProvider(L"FITTING_GATEVALVE")->GetProviderType(),
              eAssemblyElementValve);
}

TEST(CASPluginLoader, AFolderWithoutPluginsLoadsNothing) {
    XimoGis::Testing::TempFolder folder;
    EXPECT_EQ(CASPluginLoader::LoadPlugins(folder.Text()), 0);
    EXPECT_EQ(CASPluginLoader::LoadPlugins(folder.Text() + L"/missing/"), 0);
    EXPECT_EQ(CASPluginLoader::LoadPlugins(L""), 0);  // no install folder configured
    EXPECT_TRUE(CASManager::Instance()->GetAssemblyElementTypeRegistry()->empty());
}
