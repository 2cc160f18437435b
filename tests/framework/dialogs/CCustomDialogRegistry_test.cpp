#include "framework/dialogs/CCustomDialogRegistry.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include "host/input/AcEdInputScript.h"

using namespace XimoGis::Data;

namespace {

// Like a block picker: the answer "name|attributes" fills two properties; one without "|" is refused.
class CTwoFieldDialog : public ICustomDialog {
public:
    int runs = 0;
    bool Run(CPropertyEx& property, CPropertiesEx* properties, const std::wstring& answer) override {
        ++runs;
        const auto bar = answer.find(L'|');
        if (bar == std::wstring::npos || !properties) return false;
        property.SetValue(answer.substr(0, bar));
        return properties->SetPropertyValue(L"IT_BLOCK_ATTDATA", answer.substr(bar + 1));
    }
};

class CCustomDialogRegistryTest : public ::testing::Test {
protected:
    void SetUp() override {
        set.AddCategory(994, 994, 994);
        block = set.AddProperty(994, boost::make_shared<CPropertyEx>(L"IT_BLOCK_NAME", enmPropertyValueType::Text));
        block->SetCustomControlId(kId);
        block->SetDependency(L"0:0:LD_SCALEFACTOR$1:1:LD_SCALEFACTOR");
        set.AddProperty(994, boost::make_shared<CPropertyEx>(L"IT_BLOCK_ATTDATA", enmPropertyValueType::Text));
        set.AddProperty(994, boost::make_shared<CPropertyEx>(L"LD_SCALEFACTOR", enmPropertyValueType::Double));
        set.GetProperty(L"LD_SCALEFACTOR")->SetEnabled(false);
        ASSERT_TRUE(registry->RegisterDialog(kId, dialog));
    }
    void TearDown() override {
        registry->UnregisterDialog(kId);
        registry->ClearPresetValues();
    }

    static constexpr const wchar_t* kId = L"TEST_BLOCK_DLG";
    CCustomDialogRegistry* registry = CCustomDialogRegistry::Instance();
    boost::shared_ptr<CTwoFieldDialog> dialog = boost::make_shared<CTwoFieldDialog>();
    CPropertiesEx set;
    boost::shared_ptr<CPropertyEx> block;
};

}  // namespace

TEST_F(CCustomDialogRegistryTest, RegistrationIsKeyedByControlId) {
    EXPECT_EQ(registry->GetDialog(kId), dialog);
    EXPECT_FALSE(registry->RegisterDialog(L"", dialog));
    EXPECT_FALSE(registry->RegisterDialog(L"TEST_NULL", nullptr));
    auto other = boost::make_shared<CTwoFieldDialog>();
    EXPECT_TRUE(registry->RegisterDialog(kId, other));
    EXPECT_EQ(registry->GetDialog(kId), other);
    EXPECT_TRUE(registry->UnregisterDialog(kId));
    registry->SetPresetValue(kId, L"A|B");
    EXPECT_EQ(registry->RunDialog(*block, &set), enmCustomDialogResult::NoDialog);
}

TEST_F(CCustomDialogRegistryTest, WithoutAPresetTheInputScriptAnswers) {
    registry->SetPresetValue(kId, L"IT_A4|A:1;");
    EXPECT_TRUE(registry->ClearPresetValue(kId));
    acedInputScript()->clear();
    EXPECT_EQ(registry->RunDialog(*block, &set), enmCustomDialogResult::Cancelled);  // nothing typed
    acedInputScript()->addEscape();
    EXPECT_EQ(registry->RunDialog(*block, &set), enmCustomDialogResult::Cancelled);
    EXPECT_EQ(dialog->runs, 0);
    EXPECT_TRUE(block->GetValue().IsNull());

    acedInputScript()->addText(L"IT_A3|DATUM:1;");
    EXPECT_EQ(registry->RunDialog(*block, &set), enmCustomDialogResult::Chosen);
    EXPECT_EQ(set.GetStrProperty(L"IT_BLOCK_NAME", L"", 1), L"IT_A3");
    EXPECT_EQ(set.GetStrProperty(L"IT_BLOCK_ATTDATA", L"", 1), L"DATUM:1;");
    acedInputScript()->clear();
}

TEST_F(CCustomDialogRegistryTest, PresetAnswerIsWrittenByTheDialog) {
    registry->SetPresetValue(kId, L"1|NASLOV:Šćž ĐČ;");
    EXPECT_EQ(registry->RunDialog(*block, &set), enmCustomDialogResult::Chosen);
    EXPECT_EQ(set.GetStrProperty(L"IT_BLOCK_NAME", L"", 1), L"1");
    EXPECT_EQ(set.GetStrProperty(L"IT_BLOCK_ATTDATA", L"", 1), L"NASLOV:Šćž ĐČ;");
    EXPECT_TRUE(set.GetProperty(L"LD_SCALEFACTOR")->IsEnabled());  // the chosen value's rule applied
}

TEST_F(CCustomDialogRegistryTest, RefusedAnswerCountsAsCancelled) {
    registry->SetPresetValue(kId, L"no separator");
    EXPECT_EQ(registry->RunDialog(*block, &set), enmCustomDialogResult::Cancelled);
    EXPECT_EQ(dialog->runs, 1);
    EXPECT_TRUE(block->GetValue().IsNull());
    EXPECT_FALSE(set.GetProperty(L"LD_SCALEFACTOR")->IsEnabled());
}
