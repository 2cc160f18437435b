#include "fittings/CFittingsPlugin.h"

#include "fittings/CFittingData.h"
#include "plugins/fittings/FittingsTestSupport.h"

#include "host/base/AcString.h"
#include "module/catalog/CASCatalog.h"
#include "module/definitions/CASDefinition.h"
#include "module/manager/CASManager.h"

#include <gtest/gtest.h>

#include <set>

using namespace XimoGis::AssemblySchemes;
using namespace XimoGis::AssemblySchemes::Fittings;

TEST(CFittingsPlugin, RegistersEightProvidersThroughItsExport) {
    IAssemblyElementPlugin* plugin = GetAssemblyElementPlugin();
    ASSERT_EQ(GetAssemblyElementPlugin(), plugin);
    EXPECT_EQ(plugin->RegisterElementTypes(), 8);
    auto* registry = CASManager::Instance()->GetAssemblyElementTypeRegistry();
    for (const auto& provider : CFittingsPlugin::CreateProviders())
        EXPECT_EQ(registry->erase(provider->GetProviderId()), 1u);
}

// Every item of the demo catalog from every view: the views a provider claims are drawn, with
// flange lines that carry the item's PN and its DN (or its outlet's), and in the top and front
// views the first connection's face is at the insertion point; other views draw nothing, return 0.
TEST(CFittingsPlugin, EveryProviderDrawsTheViewsItClaimsWithMarkedFlanges) {
    const auto catalog = Testing::ReadDemoCatalog();
    ASSERT_TRUE(catalog);
    CASDefinition definition;  // 1:10
    std::set<std::wstring> drawnTypes;
    for (const auto& provider : CFittingsPlugin::CreateProviders()) {
        EXPECT_TRUE(provider->IsProjectionSupported(eViewTop) && provider->IsProjectionSupported(eViewFront));
        for (XimoGis::Data::CCatalogItem* item : catalog->GetItemsInTreeOrder()) {
            if (CASCatalog::GetElementType(item) != provider->GetProviderId()) continue;
            drawnTypes.insert(provider->GetProviderId());
            const int dn = item->GetProperties().GetIntProperty(L"AS_NOMINALDIAMETER", 0, 0);
            const int pn = item->GetProperties().GetIntProperty(L"AS_NOMINALPRESSURE", 0, 0);
            const auto outlet = int(CFittingData::ReadOutletDiameter(CASCatalog::GetCatalogNumber(item), dn));
            for (const enmViewDirection view : kViewDirections) {
                SCOPED_TRACE(acutWcharToUtf8(item->GetName() + L", " + GetViewDirectionName(view)));
                Testing::WorkingDrawing drawing;
                AcArray<AcDbObjectId> ids;
                const int drawn = provider->DrawAEProjection({100, 200, 0}, view, item, &definition, ids);
                EXPECT_EQ(drawing.ModelSpaceCount(), std::size_t(ids.length()));
                if (!provider->IsProjectionSupported(view)) {
                    EXPECT_EQ(drawn, 0);
                    EXPECT_TRUE(ids.isEmpty());
                    continue;
                }
                EXPECT_EQ(drawn, 1);
                const auto flanges = Testing::FlangeLines(ids);
                ASSERT_FALSE(flanges.empty());
                for (const auto& flange : flanges) {
                    EXPECT_TRUE(flange.dn == dn || flange.dn == outlet) << flange.dn;
                    EXPECT_EQ(flange.pn, pn);
                }
                if (view == eViewTop || view == eViewFront) {
                    EXPECT_TRUE(flanges.front().middle.isEqualTo({100, 200, 0}));
                }
            }
        }
    }
    EXPECT_EQ(drawnTypes.size(), 8u);
}
