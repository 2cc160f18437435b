#include "framework/demo/CDemoCatalog.h"

#include "framework/catalog/CCatalogXml.h"
#include "framework/catalog/CatalogTags.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace XimoGis::Data;
using XimoGis::Demo::CDemoCatalog;

namespace {

double Number(const CCatalogItem& item, const wchar_t* tag) {
    return item.GetProperties().GetDblProperty(tag, -1.0, 0);
}

TEST(DemoCatalog, HoldsFittingsInGroupsWithCompleteData) {
    std::wstring error;
    const auto catalog = CCatalogXml::Read(CDemoCatalog::GetSourceFile(), error);
    ASSERT_TRUE(catalog) << error;
    EXPECT_EQ(catalog->GetName(), CatalogTags::kAssemblySchemesCatalog);
    const std::set<std::wstring> providers = {L"FITTING_FLANGE",    L"FITTING_PIPE",    L"FITTING_TEE",
                                              L"FITTING_ELBOW90",   L"FITTING_ELBOW45", L"FITTING_REDUCER",
                                              L"FITTING_GATEVALVE", L"FITTING_HYDRANT"};
    std::set<std::wstring> seen;
    std::set<std::wstring> catalogNumbers;
    std::set<double> diameters;
    for (const CCatalogItem* item : catalog->GetItemsInTreeOrder()) {
        if (item->IsGroup()) continue;
        const std::wstring provider = item->GetProperty(L"AS_ELEMENTTYPE")->GetValue().GetText();
        EXPECT_TRUE(providers.count(provider)) << item->GetName();
        seen.insert(provider);
        const double pn = Number(*item, L"AS_NOMINALPRESSURE");
        EXPECT_TRUE(pn == 10.0 || pn == 16.0) << item->GetName();
        diameters.insert(Number(*item, L"AS_NOMINALDIAMETER"));
        EXPECT_GT(std::min(Number(*item, L"AS_MASS"), Number(*item, L"AS_LENGTH")), 0.0) << item->GetName();
        EXPECT_GE(item->GetProperties().GetIntProperty(L"AS_PART_TYPE", 0, 0), 1) << item->GetName();
        for (const wchar_t* tag : {L"AS_ELEMENTNAME", L"AS_CUSTOM1", L"AS_CUSTOM2", L"AS_CUSTOM3", L"AS_CUSTOM4"})
            EXPECT_FALSE(item->GetProperty(tag)->GetValue().GetText().empty()) << item->GetName();
        const auto number = item->GetProperty(L"AS_CATALOGNUM");
        EXPECT_FALSE(number->GetValue().IsNull()) << item->GetName();
        EXPECT_TRUE(catalogNumbers.insert(number->GetHiddenValue().GetText()).second) << item->GetName();
    }
    EXPECT_EQ(seen, providers);
    EXPECT_EQ(diameters, (std::set<double>{80.0, 100.0, 150.0, 200.0}));

    // Ids are fixed, so drawings made with the demo keep finding their items.
    const CCatalogItem* tee = catalog->GetItem(L"{2761AEBD-F37E-5918-9F42-755B282BA026}");
    ASSERT_NE(tee, nullptr);
    EXPECT_EQ(tee->GetParentItem()->GetName(), L"Tees (T)");
    EXPECT_EQ(tee->GetProperty(L"AS_CATALOGNUM")->GetHiddenValue().GetText(), L"T-100-080-16");
    EXPECT_EQ(Number(*tee, L"AS_MASS"), 21.0);
    std::vector<std::wstring> groups;
    for (const auto& group : catalog->GetRootItems()) groups.push_back(group->GetName());
    EXPECT_EQ(groups, (std::vector<std::wstring>{L"Flanges", L"Flanged pipe pieces (FF)", L"Tees (T)", L"Elbows",
                                                 L"Reducers (FFR)", L"Valves", L"Hydrants"}));
}

}  // namespace
