#include "framework/catalog/CCatalog.h"

#include "framework/catalog/CatalogTags.h"

#include <gtest/gtest.h>

using namespace XimoGis::Data;

namespace {

const std::wstring kElement = CatalogTags::kElementBlockType;
using Names = std::vector<std::wstring>;

Names NamesOf(const std::vector<boost::shared_ptr<CCatalogItem>>& items) {
    Names names;
    for (const auto& item : items) names.push_back(item->GetName());
    return names;
}

class CatalogTest : public ::testing::Test {
protected:
    CCatalogItem* Add(CCatalogItem* parent, const std::wstring& name, bool isGroup = false) {
        CCatalogItem* item = catalog.AddItem(parent, L"", name, isGroup, isGroup ? L"" : kElement, error);
        EXPECT_NE(item, nullptr) << error;
        return item;
    }

    CCatalog catalog{L"ASSEMBLYSCHEMES_CATALOG"};
    std::wstring error;
};

TEST_F(CatalogTest, ItemsGetTheirOwnCopyOfTheirTemplatesProperties) {
    CCatalogItem* tee = Add(nullptr, L"T 100x100");
    EXPECT_EQ(tee->GetProperties().GetPropertyCount(), 19u);  // 13 element data tags, 6 block files
    for (const wchar_t* tag : {L"AS_ELEMENTNAME", L"AS_NOMINALPRESSURE", L"AS_NOMINALDIAMETER", L"AS_MASS",
                               L"AS_LENGTH", L"AS_ANGLE", L"AS_PART_TYPE", L"AS_CUSTOM1", L"AS_CUSTOM4",
                               L"AS_ELEMENTTYPE", L"AS_CATALOGNUM", L"AS_BLOCK1", L"AS_BLOCK6"})
        EXPECT_TRUE(tee->GetProperty(tag)) << tag;
    EXPECT_EQ(tee->GetProperty(L"AS_ELEMENTTYPE")->GetHiddenValue().GetText(), kElement);
    EXPECT_FALSE(tee->GetProperty(L"AS_CUSTOM1")->GetValue().IsNull());
    EXPECT_TRUE(tee->GetProperty(L"AS_CATALOGNUM")->GetHiddenValue().IsNull());
    EXPECT_EQ(tee->GetProperty(L"AS_PART_TYPE")->GetValueType(), enmPropertyValueType::Integer);

    tee->GetProperty(L"AS_MASS")->SetValue(22.5);
    EXPECT_TRUE(Add(nullptr, L"T 80x80")->GetProperty(L"AS_MASS")->GetValue().IsNull());
    EXPECT_TRUE(catalog.GetItemTemplate(kElement)->GetProperties().GetProperty(L"AS_MASS")->GetValue().IsNull());
    EXPECT_TRUE(catalog.AddItem(nullptr, L"", L"Misc", true, L"NO_TEMPLATE", error)->GetProperties().IsEmpty());
}

TEST_F(CatalogTest, ItemsFormATreeInTheirOrderAndGoWithTheirSubtree) {
    CCatalogItem* elbows = Add(nullptr, L"Elbows", true);
    CCatalogItem* q = Add(elbows, L"Q", true);
    CCatalogItem* ffk = Add(elbows, L"FFK", true);
    CCatalogItem* bend = Add(q, L"Q 100");
    Add(q, L"Q 150");
    EXPECT_EQ(bend->GetParentItem(), q);
    EXPECT_EQ(q->GetParentItem(), elbows);
    EXPECT_EQ(elbows->GetParentItem(), nullptr);
    EXPECT_EQ(catalog.GetItem(bend->GetId()), bend);
    EXPECT_EQ(bend->GetId().size(), 38u);  // a new GUID in braces
    EXPECT_FALSE(ffk->IsAncestorOf(bend));
    Names order;
    for (const CCatalogItem* item : catalog.GetItemsInTreeOrder()) order.push_back(item->GetName());
    EXPECT_EQ(order, (Names{L"Elbows", L"Q", L"Q 100", L"Q 150", L"FFK"}));

    const std::wstring bendId = bend->GetId();
    EXPECT_TRUE(catalog.RemoveItem(q));
    EXPECT_EQ(catalog.GetItem(bendId), nullptr);
    EXPECT_EQ(catalog.GetItemCount(), 2u);
    EXPECT_EQ(NamesOf(elbows->GetChildren()), Names{L"FFK"});
    EXPECT_FALSE(CCatalog(L"OTHER").RemoveItem(ffk));
}

TEST_F(CatalogTest, RefusesTakenIdsEmptyNamesAndParentsThatCannotHoldItems) {
    CCatalogItem* group = catalog.AddItem(nullptr, L"G-1", L"Tees", true, L"", error);
    CCatalogItem* tee = Add(group, L"T 80x80");
    EXPECT_FALSE(catalog.AddItem(nullptr, L"G-1", L"Again", true, L"", error));
    EXPECT_NE(error.find(L"G-1 is taken by item \"Tees\""), std::wstring::npos) << error;
    EXPECT_FALSE(catalog.AddItem(group, L"", L"", false, kElement, error));
    EXPECT_FALSE(catalog.AddItem(tee, L"", L"Inside", false, kElement, error));
    EXPECT_NE(error.find(L"is not a group"), std::wstring::npos) << error;
    EXPECT_FALSE(CCatalog(L"OTHER").AddItem(group, L"", L"Foreign", false, kElement, error));
    EXPECT_EQ(catalog.GetItemCount(), 2u);
}

TEST_F(CatalogTest, MovesItemsWithinAndBetweenGroupsButNotBelowThemselves) {
    CCatalogItem* a = Add(nullptr, L"A", true);
    CCatalogItem* b = Add(nullptr, L"B", true);
    CCatalogItem* a1 = Add(a, L"A1");
    Add(a, L"A2");
    Add(a, L"A3");
    ASSERT_TRUE(catalog.MoveItem(a1, a, 5, error)) << error;
    EXPECT_EQ(NamesOf(a->GetChildren()), (Names{L"A2", L"A3", L"A1"}));
    ASSERT_TRUE(catalog.MoveItem(a1, b, 0, error)) << error;
    EXPECT_EQ(a1->GetParentItem(), b);
    ASSERT_TRUE(catalog.MoveItem(b, a, 1, error)) << error;
    EXPECT_EQ(NamesOf(a->GetChildren()), (Names{L"A2", L"B", L"A3"}));
    EXPECT_EQ(NamesOf(catalog.GetRootItems()), Names{L"A"});
    EXPECT_FALSE(catalog.MoveItem(a, b, 0, error));
    EXPECT_NE(error.find(L"below itself"), std::wstring::npos) << error;
    EXPECT_FALSE(catalog.MoveItem(b, a1, 0, error));  // not a group
    ASSERT_TRUE(catalog.MoveItem(b, nullptr, 0, error)) << error;
    EXPECT_EQ(NamesOf(catalog.GetRootItems()), (Names{L"B", L"A"}));
}

TEST_F(CatalogTest, EqualityLooksAtTheWholeTreeAndTheValues) {
    CCatalog other(catalog.GetName());
    for (CCatalog* c : {&catalog, &other}) {
        CCatalogItem* group = c->AddItem(nullptr, L"G", L"Group", true, L"", error);
        c->AddItem(group, L"I1", L"One", false, kElement, error);
        c->AddItem(group, L"I2", L"Two", false, kElement, error);
    }
    EXPECT_TRUE(catalog == other);
    other.GetItem(L"I2")->GetProperty(L"AS_CATALOGNUM")->SetHiddenValue(L"T-1");
    EXPECT_FALSE(catalog == other);
    catalog.GetItem(L"I2")->GetProperty(L"AS_CATALOGNUM")->SetHiddenValue(L"T-1");
    ASSERT_TRUE(other.MoveItem(other.GetItem(L"I2"), other.GetItem(L"G"), 0, error));
    EXPECT_FALSE(catalog == other);
}

}  // namespace
