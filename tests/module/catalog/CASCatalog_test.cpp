#include "module/catalog/CASCatalog.h"

#include "module/catalog/CatalogTestSupport.h"

#include <gtest/gtest.h>

using namespace XimoGis::AssemblySchemes;

TEST(CASCatalog, ReadsTheElementTypeTheCatalogNumberHiddenFirstAndTheBlockOfAView) {
    XimoGis::Data::CCatalog catalog(L"ASSEMBLYSCHEMES_CATALOG");
    auto* item = Testing::AddElement(catalog, nullptr, L"T 100x80");
    EXPECT_EQ(CASCatalog::GetElementType(item), L"ELEMENT_BLOCK01");  // the item type's default
    EXPECT_EQ(CASCatalog::GetCatalogNumber(item), L"");                // null
    item->GetProperty(L"AS_CATALOGNUM")->SetValue(L"T 100/80", L"T-100-080-16");
    EXPECT_EQ(CASCatalog::GetCatalogNumber(item), L"T-100-080-16");
    item->GetProperty(L"AS_CATALOGNUM")->SetHiddenValue({});
    EXPECT_EQ(CASCatalog::GetCatalogNumber(item), L"T 100/80");
    item->GetProperty(L"AS_BLOCK4")->SetValue(L"tee_front");
    EXPECT_EQ(CASCatalog::GetBlockReference(item, eViewFront), L"tee_front");
    EXPECT_EQ(CASCatalog::GetBlockReference(item, eViewTop), L"");
    EXPECT_EQ(CASCatalog::GetBlockReference(item, static_cast<enmViewDirection>(7)), L"");
    item->GetProperties().RemoveProperty(L"AS_ELEMENTTYPE");
    EXPECT_EQ(CASCatalog::GetElementType(item), L"");
    EXPECT_EQ(CASCatalog::GetElementType(nullptr), L"");
    EXPECT_EQ(CASCatalog::GetCatalogNumber(nullptr), L"");
}
