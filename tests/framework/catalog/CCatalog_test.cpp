#include "framework/catalog/CCatalog.h"

#include "framework/catalog/CatalogTags.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

using namespace XimoGis::Data;

namespace {

const std::wstring kElement = CatalogTags::kElementBlockType;

std::vector<std::wstring> Names(const std::vector<boost::shared_ptr<CCatalogItem>>& items) {
    std::vector<std::wstring> names;
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

TEST_F(CatalogTest, ElementItemsGetEveryTagOfTheTemplateAtItsDefault) {
    CCatalogItem* tee = Add(nullptr, L"T 100x100");
    for (const wchar_t* tag : {L"AS_ELEMENTNAME", L"AS_NOMINALPRESSURE", L"AS_NOMINALDIAMETER", L"AS_MASS",
                               L"AS_LENGTH", L"AS_ANGLE", L"AS_PART_TYPE", L"AS_CUSTOM1", L"AS_CUSTOM2", L"AS_CUSTOM3",
                               L"AS_CUSTOM4", L"AS_ELEMENTTYPE", L"AS_CATALOGNUM", L"AS_BLOCK1", L"AS_BLOCK6"})
        EXPECT_TRUE(tee->GetProperty(tag)) << tag;
    EXPECT_EQ(tee->GetProperties().GetPropertyCount(), 19u);
    EXPECT_EQ(tee->GetProperty(L"AS_ELEMENTTYPE")->GetValue().GetText(), kElement);
    EXPECT_EQ(tee->GetProperty(L"AS_ELEMENTTYPE")->GetHiddenValue().GetText(), kElement);
    EXPECT_FALSE(tee->GetProperty(L"AS_CUSTOM1")->GetValue().IsNull());
    EXPECT_TRUE(tee->GetProperty(L"AS_MASS")->GetValue().IsNull());
    EXPECT_TRUE(tee->GetProperty(L"AS_CATALOGNUM")->GetHiddenValue().IsNull());
    EXPECT_EQ(tee->GetProperty(L"AS_PART_TYPE")->GetValueType(), enmPropertyValueType::Integer);
    EXPECT_EQ(tee->GetProperty(L"AS_MASS")->GetValueType(), enmPropertyValueType::Double);
    EXPECT_FALSE(tee->GetProperty(L"AS_NOT_THERE"));
}

TEST_F(CatalogTest, ItemsOwnTheirPropertiesAndFollowTheTemplateOfTheirType) {
    CCatalogItem* first = Add(nullptr, L"FF 100x500");
    first->GetProperty(L"AS_MASS")->SetValue(19.5);
    EXPECT_TRUE(Add(nullptr, L"FF 100x1000")->GetProperty(L"AS_MASS")->GetValue().IsNull());
    EXPECT_TRUE(catalog.GetItemTemplate(kElement)->GetProperties().GetProperty(L"AS_MASS")->GetValue().IsNull());

    auto valve = boost::make_shared<CCatalogItemTemplate>(L"VALVE");
    auto torque = boost::make_shared<CPropertyEx>(L"TORQUE", enmPropertyValueType::Double);
    torque->SetDefaultAndValue(40.0);
    valve->GetProperties().AddCategory(0, 0, 0);
    valve->GetProperties().AddProperty(0, torque);
    catalog.SetItemTemplate(valve);
    CCatalogItem* gate = catalog.AddItem(nullptr, L"", L"E 100", false, L"VALVE", error);
    EXPECT_EQ(gate->GetProperties().GetDblProperty(L"TORQUE", 0.0, 1), 40.0);
    EXPECT_TRUE(catalog.AddItem(nullptr, L"", L"Misc", true, L"NO_TEMPLATE", error)->GetProperties().IsEmpty());
}

TEST_F(CatalogTest, ItemsFormATreeInTheirOrder) {
    CCatalogItem* elbows = Add(nullptr, L"Elbows", true);
    CCatalogItem* q = Add(elbows, L"Q", true);
    CCatalogItem* ffk = Add(elbows, L"FFK", true);
    CCatalogItem* bend = Add(q, L"Q 100");
    Add(q, L"Q 150");
    EXPECT_EQ(Names(elbows->GetChildren()), (std::vector<std::wstring>{L"Q", L"FFK"}));
    EXPECT_EQ(bend->GetParentItem(), q);
    EXPECT_EQ(q->GetParentItem(), elbows);
    EXPECT_EQ(elbows->GetParentItem(), nullptr);
    EXPECT_EQ(catalog.GetItem(bend->GetId()), bend);
    EXPECT_EQ(bend->GetId().size(), 38u);  // a new GUID in braces
    EXPECT_NE(bend->GetId(), q->GetId());
    EXPECT_TRUE(elbows->IsAncestorOf(bend));
    EXPECT_FALSE(ffk->IsAncestorOf(bend));
    std::vector<std::wstring> order;
    for (const CCatalogItem* item : catalog.GetItemsInTreeOrder()) order.push_back(item->GetName());
    EXPECT_EQ(order, (std::vector<std::wstring>{L"Elbows", L"Q", L"Q 100", L"Q 150", L"FFK"}));
}

TEST_F(CatalogTest, RefusesTakenIdsEmptyNamesAndParentsThatCannotHoldItems) {
    CCatalogItem* group = catalog.AddItem(nullptr, L"G-1", L"Tees", true, L"", error);
    CCatalogItem* tee = Add(group, L"T 80x80");
    EXPECT_FALSE(catalog.AddItem(nullptr, L"G-1", L"Again", true, L"", error));
    EXPECT_NE(error.find(L"G-1 is taken by item \"Tees\""), std::wstring::npos) << error;
    EXPECT_FALSE(catalog.AddItem(group, L"", L"", false, kElement, error));
    EXPECT_FALSE(catalog.AddItem(tee, L"", L"Inside", false, kElement, error));
    EXPECT_NE(error.find(L"is not a group"), std::wstring::npos) << error;
    CCatalog other(L"OTHER");
    EXPECT_FALSE(other.AddItem(group, L"", L"Foreign", false, kElement, error));
    EXPECT_EQ(catalog.GetItemCount(), 2u);
    EXPECT_EQ(other.GetItemCount(), 0u);
}

TEST_F(CatalogTest, RemovingAGroupRemovesEverythingBelowIt) {
    CCatalogItem* valves = Add(nullptr, L"Valves", true);
    const std::wstring gateId = Add(valves, L"E 100")->GetId();
    CCatalogItem* hydrants = Add(nullptr, L"Hydrants", true);
    EXPECT_TRUE(catalog.RemoveItem(valves));
    EXPECT_EQ(catalog.GetItem(gateId), nullptr);
    EXPECT_EQ(catalog.GetItemCount(), 1u);
    EXPECT_EQ(Names(catalog.GetRootItems()), std::vector<std::wstring>{L"Hydrants"});
    CCatalog other(L"OTHER");
    EXPECT_FALSE(other.RemoveItem(hydrants));
}

TEST_F(CatalogTest, MovesItemsWithinAndBetweenGroupsButNotBelowThemselves) {
    CCatalogItem* a = Add(nullptr, L"A", true);
    CCatalogItem* b = Add(nullptr, L"B", true);
    CCatalogItem* a1 = Add(a, L"A1");
    Add(a, L"A2");
    Add(a, L"A3");
    ASSERT_TRUE(catalog.MoveItem(a1, a, 5, error)) << error;
    EXPECT_EQ(Names(a->GetChildren()), (std::vector<std::wstring>{L"A2", L"A3", L"A1"}));
    ASSERT_TRUE(catalog.MoveItem(a1, b, 0, error)) << error;
    EXPECT_EQ(a1->GetParentItem(), b);
    EXPECT_EQ(Names(b->GetChildren()), std::vector<std::wstring>{L"A1"});
    ASSERT_TRUE(catalog.MoveItem(b, a, 1, error)) << error;
    EXPECT_EQ(Names(a->GetChildren()), (std::vector<std::wstring>{L"A2", L"B", L"A3"}));
    EXPECT_EQ(Names(catalog.GetRootItems()), std::vector<std::wstring>{L"A"});
    EXPECT_FALSE(catalog.MoveItem(a, b, 0, error));
    EXPECT_NE(error.find(L"below itself"), std::wstring::npos) << error;
    EXPECT_FALSE(catalog.MoveItem(a, a, 0, error));
    EXPECT_FALSE(catalog.MoveItem(b, a1, 0, error));  // not a group
    ASSERT_TRUE(catalog.MoveItem(b, nullptr, 0, error)) << error;
    EXPECT_EQ(Names(catalog.GetRootItems()), (std::vector<std::wstring>{L"B", L"A"}));
    EXPECT_EQ(b->GetParentItem(), nullptr);
}

TEST_F(CatalogTest, EqualityLooksAtTheWholeTreeAndTheValues) {
    const auto build = [](CCatalog& c) {
        std::wstring e;
        CCatalogItem* group = c.AddItem(nullptr, L"G", L"Group", true, L"", e);
        c.AddItem(group, L"I1", L"One", false, CatalogTags::kElementBlockType, e);
        c.AddItem(group, L"I2", L"Two", false, CatalogTags::kElementBlockType, e);
    };
    CCatalog other(catalog.GetName());
    build(catalog);
    build(other);
    EXPECT_TRUE(catalog == other);
    other.GetItem(L"I2")->GetProperty(L"AS_CATALOGNUM")->SetHiddenValue(L"T-1");
    EXPECT_FALSE(catalog == other);
    catalog.GetItem(L"I2")->GetProperty(L"AS_CATALOGNUM")->SetHiddenValue(L"T-1");
    EXPECT_TRUE(catalog == other);
    ASSERT_TRUE(other.MoveItem(other.GetItem(L"I2"), other.GetItem(L"G"), 0, error));
    EXPECT_FALSE(catalog == other);
}

}  // namespace
