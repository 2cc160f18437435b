#include "framework/data/CPropertyEx.h"

#include <gtest/gtest.h>

using namespace XimoGis::Data;

TEST(CPropertyEx, PlainValuesKeepShownAndHiddenTogether) {
    CPropertyEx p(L"TEXT_HEIGHT", enmPropertyValueType::Double);
    p.SetDefaultAndValue(1.0);
    p.SetValue(2.5);
    EXPECT_EQ(p.GetHiddenValue(), CPropertyValue(2.5));
    // A hidden value of its own (a computed scale) leaves the shown value alone.
    p.SetHiddenValue(0.01);
    EXPECT_EQ(p.GetValueFor(0), CPropertyValue(2.5));
    EXPECT_EQ(p.GetValueFor(1), CPropertyValue(0.01));
    p.SetValue(L"K-12", CPropertyValue());
    EXPECT_EQ(p.GetValueFor(1).GetText(), L"K-12");  // a null hidden value falls back to the shown one
    p.ResetToDefault();
    EXPECT_EQ(p.GetValueFor(1), CPropertyValue(1.0));
}

TEST(CPropertyEx, ListValueFollowsTheChoices) {
    CPropertyEx p(L"LABEL_STYLE", enmPropertyValueType::ListIndex, eEditorList, 5160, 5160);
    p.AddListChoice(L"Krug", 0);
    p.AddListChoice(L"Pravokutnik", 1);
    p.SetDefaultAndValue(L"Krug", 0);
    p.SetValue(L"Pravokutnik");
    EXPECT_EQ(p.GetHiddenValue(), CPropertyValue(1));
    p.SetValue(L"Zvijezda");  // not a choice: the stored index stays
    EXPECT_EQ(p.GetHiddenValue(), CPropertyValue(1));
    EXPECT_TRUE(p.SelectListChoice(0));
    EXPECT_EQ(p.GetValue().GetText(), L"Krug");
    EXPECT_FALSE(p.SelectListChoice(7));
    EXPECT_EQ(p.GetHiddenValue(), CPropertyValue(0));
}

TEST(CPropertyEx, DependencyIsCheckedAndEvaluatedOnTheHiddenValue) {
    CPropertyEx p(L"DF_LEFT", enmPropertyValueType::Integer, eEditorCheckBox);
    p.SetDefaultAndValue(1);
    ASSERT_TRUE(p.SetDependency(L"0:0:LT_LEFT#LC_LEFT$1:1:LT_LEFT#LC_LEFT"));
    std::wstring error;
    EXPECT_FALSE(p.SetDependency(L"0:0", &error));
    EXPECT_FALSE(error.empty());
    EXPECT_EQ(p.GetDependency(), L"0:0:LT_LEFT#LC_LEFT$1:1:LT_LEFT#LC_LEFT");
    EXPECT_TRUE(p.EvaluateDependency().at(L"LT_LEFT"));
    p.SetValue(L"Ne", 0);
    EXPECT_FALSE(p.EvaluateDependency().at(L"LC_LEFT"));
    p.SetValue(L"abc");
    EXPECT_TRUE(p.EvaluateDependency().empty());
}
