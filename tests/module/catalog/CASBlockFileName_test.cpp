#include "module/catalog/CASBlockFileName.h"

#include "module/catalog/CatalogTestSupport.h"

#include <gtest/gtest.h>

using namespace XimoGis::AssemblySchemes;
using Testing::AddElement;
using Testing::AddGroup;

namespace {

// Steel / Fittings / Flange (F-100); Valves DN 100 / E 100 (E-100); Plug at the root, no number.
class BlockFileNameTest : public ::testing::Test {
protected:
    std::wstring Folder() const { return folder.Text() + L"/"; }
    void Touch(const std::string& name) const { folder.Write(name + ".dxf", ""); }

    XimoGis::Testing::TempFolder folder;
    XimoGis::Data::CCatalog catalog{L"ASSEMBLYSCHEMES_CATALOG"};
    XimoGis::Data::CCatalogItem* flange =
        AddElement(catalog, AddGroup(catalog, AddGroup(catalog, nullptr, L"Steel"), L"Fittings"), L"Flange", L"F-100");
    XimoGis::Data::CCatalogItem* valve =
        AddElement(catalog, AddGroup(catalog, nullptr, L"Valves DN 100"), L"E 100", L"E-100");
    XimoGis::Data::CCatalogItem* plug = AddElement(catalog, nullptr, L"Plug");
};

}  // namespace

TEST_F(BlockFileNameTest, NearestAncestorFirstThenNameNumberAndView) {
    EXPECT_EQ(CASBlockFileName::MakeNew(Folder(), eViewBottom, flange), L"Fittings_Steel_Flange_F-100_2");
    Touch("Fittings_Steel_Flange_F-100_2");
    EXPECT_EQ(CASBlockFileName::MakeNew(Folder(), eViewBottom, flange), L"Fittings_Steel_Flange_F-100_2_1");
    EXPECT_EQ(CASBlockFileName::MakeNew(Folder(), eViewTop, plug), L"_Plug_1");  // at the root
}

TEST_F(BlockFileNameTest, AnEmptyCatalogNumberAddsNothingAndTheShownOneIsTheFallback) {
    auto number = flange->GetProperty(L"AS_CATALOGNUM");
    number->SetValue(L"F 100", L"");  // an empty hidden value is not null: it wins
    EXPECT_EQ(CASBlockFileName::Compose(eViewTop, flange), L"Fittings_Steel_Flange_1");
    number->SetHiddenValue({});
    EXPECT_EQ(CASBlockFileName::Compose(eViewTop, flange), L"Fittings_Steel_Flange_F 100_1");
}

TEST_F(BlockFileNameTest, CountersOneToThreeTakenGiveFour) {
    for (const char* suffix : {"", "_1", "_2", "_3"}) Touch(std::string("Fittings_Steel_Flange_F-100_6") + suffix);
    EXPECT_EQ(CASBlockFileName::MakeNew(Folder(), eViewRight, flange), L"Fittings_Steel_Flange_F-100_6_4");
    EXPECT_EQ(CASBlockFileName::MakeNew(L"", eViewRight, flange), L"Fittings_Steel_Flange_F-100_6");  // no folder
}

TEST_F(BlockFileNameTest, BlanksAreReplacedOnlyAfterTheUniquenessTest) {
    EXPECT_EQ(CASBlockFileName::Compose(eViewBack, valve), L"Valves DN 100_E 100_E-100_3");
    // The next call looks for the name with blanks, so it gives the name of a file that exists.
    Touch("Valves_DN_100_E_100_E-100_3");
    EXPECT_EQ(CASBlockFileName::MakeNew(Folder(), eViewBack, valve), L"Valves_DN_100_E_100_E-100_3");
    Touch("Valves DN 100_E 100_E-100_3");
    EXPECT_EQ(CASBlockFileName::MakeNew(Folder(), eViewBack, valve), L"Valves_DN_100_E_100_E-100_3_1");
}

TEST_F(BlockFileNameTest, ANullItemHasNoName) {
    EXPECT_EQ(CASBlockFileName::MakeNew(Folder(), eViewTop, nullptr), L"");
    EXPECT_EQ(CASBlockFileName::GetFirstName(eViewTop, nullptr), L"");
}
