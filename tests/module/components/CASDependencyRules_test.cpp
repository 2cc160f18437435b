#include "module/components/CASDependencyRules.h"

#include "framework/data/CPropertyEx.h"

#include <gtest/gtest.h>

using XimoGis::AssemblySchemes::CASDependencyRules;

TEST(CASDependencyRules, RulesHaveTheirExactTextAndAreAccepted) {
    EXPECT_EQ(CASDependencyRules::FrameSide(L"BOTTOM"), L"0:0:LT_BOTTOM#LC_BOTTOM$1:1:LT_BOTTOM#LC_BOTTOM");
    EXPECT_EQ(CASDependencyRules::BOMLines(), L"0:0:LT_LEFT#LC_LEFT$1:1:LT_LEFT#LC_LEFT");
    EXPECT_EQ(CASDependencyRules::SchemeSymmetry(),
              L"0:0:AS_ELEM_SYMM_COLOR#AS_ELEM_SYMM_LINETYPE#AS_ELEM_SYMM_EXTEND$"
              L"1:1:AS_ELEM_SYMM_COLOR#AS_ELEM_SYMM_LINETYPE#AS_ELEM_SYMM_EXTEND");
    EXPECT_EQ(CASDependencyRules::TextSource(),
              L"0:1:LD_SCALEFACTOR#LD_MODIFYDATA#LAD_DATAID$0:0:LD_MANUALENTRY$"
              L"1:0:LD_SCALEFACTOR#LD_MODIFYDATA#LAD_DATAID$1:1:LD_MANUALENTRY");
    EXPECT_EQ(CASDependencyRules::ModifyData(), L"1:1:LD_SCALEFACTOR$0:0:LD_SCALEFACTOR");
    XimoGis::Data::CPropertyEx source;
    EXPECT_TRUE(source.SetDependency(CASDependencyRules::TextSource()));
    EXPECT_EQ(source.EvaluateDependency(1).at(L"LD_MANUALENTRY"), true);
    EXPECT_EQ(source.EvaluateDependency(1).at(L"LAD_DATAID"), false);
}
