#include "module/components/CASDependencyRules.h"

#include "framework/data/CPropertiesEx.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

using XimoGis::AssemblySchemes::CASDependencyRules;
using namespace XimoGis::Data;

TEST(CASDependencyRules, RulesHaveTheirExactText) {
    EXPECT_EQ(CASDependencyRules::FrameSide(L"LEFT"), L"0:0:LT_LEFT#LC_LEFT$1:1:LT_LEFT#LC_LEFT");
    EXPECT_EQ(CASDependencyRules::FrameSide(L"BOTTOM"), L"0:0:LT_BOTTOM#LC_BOTTOM$1:1:LT_BOTTOM#LC_BOTTOM");
    EXPECT_EQ(CASDependencyRules::BOMLines(), L"0:0:LT_LEFT#LC_LEFT$1:1:LT_LEFT#LC_LEFT");
    EXPECT_EQ(CASDependencyRules::SchemeSymmetry(),
              L"0:0:AS_ELEM_SYMM_COLOR#AS_ELEM_SYMM_LINETYPE#AS_ELEM_SYMM_EXTEND$"
              L"1:1:AS_ELEM_SYMM_COLOR#AS_ELEM_SYMM_LINETYPE#AS_ELEM_SYMM_EXTEND");
    EXPECT_EQ(CASDependencyRules::TextSource(),
              L"0:1:LD_SCALEFACTOR#LD_MODIFYDATA#LAD_DATAID$0:0:LD_MANUALENTRY$"
              L"1:0:LD_SCALEFACTOR#LD_MODIFYDATA#LAD_DATAID$1:1:LD_MANUALENTRY");
    EXPECT_EQ(CASDependencyRules::ModifyData(), L"1:1:LD_SCALEFACTOR$0:0:LD_SCALEFACTOR");
    EXPECT_EQ(CASDependencyRules::Build({}), L"");
}

TEST(CASDependencyRules, TheTextSourceSwitchesItsTwoGroups) {
    CPropertiesEx properties;
    properties.AddCategory(464, 464, 464);
    auto source = boost::make_shared<CPropertyEx>(L"LAD_SOURCE", enmPropertyValueType::Integer);
    source->SetDefaultAndValue(0);
    ASSERT_TRUE(source->SetDependency(CASDependencyRules::TextSource()));
    properties.AddProperty(464, source);
    for (const wchar_t* tag : {L"LAD_DATAID", L"LD_MODIFYDATA", L"LD_SCALEFACTOR", L"LD_MANUALENTRY"})
        properties.AddProperty(464, boost::make_shared<CPropertyEx>(tag, enmPropertyValueType::Text));

    properties.ApplyAllDependencies();
    EXPECT_TRUE(properties.GetProperty(L"LAD_DATAID")->IsEnabled());
    EXPECT_FALSE(properties.GetProperty(L"LD_MANUALENTRY")->IsEnabled());
    properties.SetPropertyValue(L"LAD_SOURCE", 1);
    EXPECT_FALSE(properties.GetProperty(L"LD_SCALEFACTOR")->IsEnabled());
    EXPECT_FALSE(properties.GetProperty(L"LD_MODIFYDATA")->IsEnabled());
    EXPECT_TRUE(properties.GetProperty(L"LD_MANUALENTRY")->IsEnabled());
}
