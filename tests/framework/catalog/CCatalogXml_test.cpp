#include "framework/catalog/CCatalogXml.h"

#include "framework/TempFolder.h"
#include "framework/catalog/CatalogTags.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

using namespace XimoGis::Data;
using XimoGis::Testing::TempFolder;

namespace {

const std::wstring kElement = CatalogTags::kElementBlockType;

class CatalogXmlTest : public ::testing::Test {
protected:
    boost::shared_ptr<CCatalog> ReadText(const std::string& text) {
        folder.Write("catalog.xml", text);
        return CCatalogXml::Read(File(), error);
    }
    std::wstring File() const { return (folder.Path() / "catalog.xml").wstring(); }

    TempFolder folder;
    std::wstring error;
};

TEST_F(CatalogXmlTest, EveryKindOfValueReadsBackEqual) {
    CCatalog catalog(L"Kanalizacija – šahtovi");
    auto cover = boost::make_shared<CCatalogItemTemplate>(L"COVER");
    cover->GetProperties().AddCategory(0, 0, 0);
    auto load = boost::make_shared<CPropertyEx>(L"LOAD_CLASS", enmPropertyValueType::ListIndex, eEditorList);
    load->AddListChoice(L"B125", 0);
    load->AddListChoice(L"D400", 1);
    load->SetDefaultAndValue(L"D400", 1);
    cover->GetProperties().AddProperty(0, load);
    catalog.SetItemTemplate(cover);

    CCatalogItem* group = catalog.AddItem(nullptr, L"", L"Poklopci & <ploče>", true, L"", error);
    CCatalogItem* a = catalog.AddItem(group, L"", L"A", false, kElement, error);
    a->GetProperty(L"AS_CATALOGNUM")->SetValue(L"shown", L"hidden");
    a->GetProperty(L"AS_MASS")->SetValue(12.25);
    a->GetProperty(L"AS_ELEMENTTYPE")->SetValue(CPropertyValue());  // null over a non-null default
    a->GetProperty(L"AS_CUSTOM2")->SetValue(L"value", CPropertyValue());  // null hidden value only
    a->GetProperty(L"AS_CUSTOM3")->SetValue(L"");
    catalog.AddItem(group, L"", L"B", false, L"COVER", error)->GetProperty(L"LOAD_CLASS")->SetValue(L"B125");
    CCatalogItem* odd = catalog.AddItem(nullptr, L"ODD", L"Without AS_MASS", false, kElement, error);
    odd->GetProperties().RemoveProperty(L"AS_MASS");
    catalog.AddItem(nullptr, L"", L"No template", false, L"UNKNOWN", error);

    ASSERT_TRUE(CCatalogXml::Write(catalog, File(), error)) << error;
    const auto read = CCatalogXml::Read(File(), error);
    ASSERT_TRUE(read) << error;
    EXPECT_TRUE(*read == catalog);
    EXPECT_EQ(read->GetItem(odd->GetId())->GetProperty(L"AS_MASS"), nullptr);
    EXPECT_EQ(CCatalogXml::ToText(*read), folder.Read("catalog.xml"));
}

TEST_F(CatalogXmlTest, ItemsWithoutTypeOrIdAreElementsWithANewGuid) {
    const auto catalog =
        ReadText("<catalog name=\"C\" version=\"1\"><group name=\"G\"><item name=\"I\"/></group></catalog>");
    ASSERT_TRUE(catalog) << error;
    const CCatalogItem* item = catalog->GetRootItems().at(0)->GetChildren().at(0).get();
    EXPECT_EQ(item->GetItemType(), kElement);
    EXPECT_EQ(item->GetId().front(), L'{');
    EXPECT_EQ(catalog->GetRootItems().at(0)->GetItemType(), L"");
}

TEST_F(CatalogXmlTest, WritesOnlyValuesThatDifferFromTheTemplate) {
    CCatalog catalog(L"C");
    catalog.AddItem(nullptr, L"I", L"Item", false, kElement, error)->GetProperty(L"AS_ANGLE")->SetValue(45.0);
    const std::string text = CCatalogXml::ToText(catalog);
    EXPECT_NE(text.find("<template itemType=\"ELEMENT_BLOCK01\">"), std::string::npos) << text;
    const std::string item = text.substr(text.find("<item "));
    EXPECT_EQ(item,
              "<item id=\"I\" name=\"Item\" type=\"ELEMENT_BLOCK01\">\n"
              "    <property tag=\"AS_ANGLE\" value=\"45\" />\n"
              "  </item>\n"
              "</catalog>\n");
}

TEST_F(CatalogXmlTest, FaultsNameTheFileAndTheLine) {
    const std::pair<const char*, const wchar_t*> cases[] = {
        {"<catalog name=\"C\" version=\"1\">\n<item name=\"I\">\n</catalog>", L"(line 3): malformed XML"},
        {"<catalog name=\"C\" version=\"2\"/>", L"version \"2\" is not supported"},
        {"<catalog name=\"C\" version=\"1\">\n<item name=\"I\">\n<property tag=\"AS_WHAT\"/></item></catalog>",
         L"(line 3): item \"I\" has no property \"AS_WHAT\""},
        {"<catalog name=\"C\" version=\"1\"><item name=\"I\"><item name=\"J\"/></item></catalog>",
         L"unexpected <item> in item \"I\" (only groups hold items)"},
        {"<catalog name=\"C\" version=\"1\"><group id=\"A\" name=\"G\"/><group id=\"A\" name=\"H\"/></catalog>",
         L"the id A is taken"},
        {"<catalog name=\"C\" version=\"1\"><template itemType=\"T\"><ppsEx version=\"9\"/></template></catalog>",
         L"the template \"T\""},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_FALSE(ReadText(text)) << text;
        EXPECT_EQ(error.rfind(L"Catalog file \"" + File() + L"\"", 0), 0u) << error;
        EXPECT_NE(error.find(expected), std::wstring::npos) << error;
    }
    EXPECT_FALSE(CCatalogXml::Read(File() + L".missing", error));
    EXPECT_NE(error.find(L"cannot be read"), std::wstring::npos) << error;
}

}  // namespace
