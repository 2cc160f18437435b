#include "module/catalog/CASDemoElements.h"

#include "module/catalog/CASCatalog.h"
#include "module/catalog/CASElementBlock.h"
#include "module/manager/PluginTestSupport.h"

#include "framework/TempFolder.h"
#include "framework/config/CModuleConfiguration.h"
#include "framework/demo/CDemoWorkspace.h"

#include <gtest/gtest.h>

using namespace XimoGis::AssemblySchemes;

TEST(CASDemoElements, ThreeDemoItemsComeAsBlockFilesOfThePluginsDrawings) {
    Testing::FittingsRegistryCleanup cleanup;
    XimoGis::Testing::TempFolder folder;
    std::wstring error;
    EXPECT_FALSE(CASDemoElements::InstallPlugins(folder.Text(), folder.Text(), error));
    EXPECT_EQ(error, L"No element plug-ins in \"" + folder.Text() + L"\"");
    const auto install = [](const std::wstring& built, std::wstring& e) {
        return CASDemoElements::InstallPlugins(L"" XIMO_PLUGIN_DIR, built, e);
    };
    const std::wstring workspace = folder.Text() + L"/demo";
    ASSERT_TRUE(XimoGis::Demo::CDemoWorkspace::Build(workspace, error, {install, &CASDemoElements::WriteBlockFiles}))
        << error;
    ASSERT_TRUE(XimoGis::CModuleConfiguration::Instance()->Open(workspace, error)) << error;
    const std::wstring blocks = CASManager::Instance()->GetASElementsBlockPath();

    auto* valve = CASCatalog::GetItem(CASDemoElements::kGateValveId);
    ASSERT_NE(valve, nullptr);
    EXPECT_EQ(CASCatalog::GetElementType(valve), L"ELEMENT_BLOCK01");
    EXPECT_EQ(CASCatalog::GetBlockReference(valve, eViewFront), L"Valves_E_100_PN16_E-100-16_4");
    EXPECT_EQ(CASCatalog::GetBlockReference(valve, eViewLeft), L"");  // the plug-in draws no such view
    EXPECT_EQ(CASElementBlock::FindFile(blocks, eViewFront, valve), blocks + L"Valves_E_100_PN16_E-100-16_4.dxf");
    auto* reducer = CASCatalog::GetItem(CASDemoElements::kReducerId);
    EXPECT_EQ(CASCatalog::GetBlockReference(reducer, eViewTop), L"");  // found by the naming rule
    EXPECT_EQ(CASElementBlock::FindFile(blocks, eViewTop, reducer),
              blocks + L"Reducers_(FFR)_FFR_100x80_PN16_FFR-100-080-16_1.dxf");
    EXPECT_EQ(CASCatalog::GetElementType(CASCatalog::GetItem(L"{2761AEBD-F37E-5918-9F42-755B282BA026}")),
              L"FITTING_TEE");  // other items keep their provider
    XimoGis::CModuleConfiguration::Instance()->Close();
}
