#include "module/definitions/CASDefinitionDialog.h"

#include "module/definitions/CASDefinition.h"
#include "module/definitions/CASRepository.h"

#include "host/input/AcEdInputScript.h"

#include <gtest/gtest.h>

using namespace XimoGis::AssemblySchemes;

namespace {

class DefinitionDialog : public ::testing::Test {
protected:
    void SetUp() override {
        acedInputScript()->clear();
        definition = new CASDefinition();
        definition->SetName(L"A4 portrait");
        repository.AddRepositoryItem(definition, 0);
        auto* other = new CASDefinition();
        other->SetName(L"A3 landscape");
        repository.AddRepositoryItem(other, 0);
    }
    void TearDown() override { acedInputScript()->clear(); }
    // Runs the dialog, the user answering with `script`; on refusal checks that nothing changed.
    int Run(const CASDefinitionEdit* edit, const std::wstring& script = L"text OK") {
        const std::wstring before = definition->GetXML();
        acedInputScript()->clear();
        acedInputScript()->addScript(script);
        CASDefinitionDialog dialog(definition, &repository, CASDefinitionDialog::eModeEdit, edit);
        const int result = dialog.DoModal();
        error = dialog.GetError();
        if (!result) {
            EXPECT_EQ(definition->GetXML(), before);
        }
        return result;
    }
    boost::shared_ptr<CASComponentData> ComponentOfType(const std::wstring& typeId) const {
        for (const auto& [id, component] : definition->GetComponents()) {
            if (component->GetId() == typeId) return component;
        }
        return {};
    }

    CASRepository repository;
    CASDefinition* definition = nullptr;
    std::wstring error;
};

}  // namespace

TEST_F(DefinitionDialog, ConfirmedChangesAreMade) {
    CASDefinitionEdit edit;
    edit.name = L"A3 portrait";
    edit.properties = {{L"ASPW", L"297"}, {L"ASPH", L"420"}, {L"LS_SCALE_X", L"0.05"}, {L"ASFLLT", L"DASHED"}};
    edit.addedComponents = {{L"01SCHEME", 10.0, 20.0}, {L"03POS", 0.0, 0.0}, {L"05TEXT", 1.5, 2.5}, {L"05TEXT"}};
    ASSERT_EQ(Run(&edit, L"enter"), 1) << error;
    EXPECT_EQ(acedInputScript()->prompts().back(), L"\nSave the definition \"A3 portrait\"? [OK/Cancel] <OK>: ");
    EXPECT_EQ(definition->GetName(), L"A3 portrait");
    EXPECT_DOUBLE_EQ(definition->GetPaperWidth(), 297.0);
    EXPECT_DOUBLE_EQ(definition->GetPaperHeight(), 420.0);
    EXPECT_EQ(definition->GetStrProperty(L"ASFLLT", L"", 1), L"DASHED");
    EXPECT_EQ(definition->GetScale()->Serialize(), L"0.05;0.05;0");
    ASSERT_EQ(definition->GetComponents().size(), 4u);
    const auto scheme = ComponentOfType(L"01SCHEME");
    ASSERT_TRUE(scheme);
    EXPECT_EQ(scheme->GetType(), eASComponentScheme);
    EXPECT_DOUBLE_EQ(scheme->GetYOffset(), 20.0);
    // The position labels go under the scheme component.
    EXPECT_EQ(ComponentOfType(L"03POS")->GetParentComponentId(), scheme->GetInternalId());
    EXPECT_EQ(ComponentOfType(L"05TEXT")->GetParentComponentId(), L"");
}

TEST_F(DefinitionDialog, InvalidChangesAreRefusedWithTheirReason) {
    CASDefinitionEdit add;
    add.addedComponents = {{L"01SCHEME"}, {L"01CMMNT"}};
    ASSERT_EQ(Run(&add), 1) << error;
    const std::wstring scheme = ComponentOfType(L"01SCHEME")->GetInternalId();
    std::vector<std::pair<CASDefinitionEdit, std::wstring>> cases(7);
    cases[0].first.properties = {{L"ASPW", L"300"}, {L"ASPH", L"wide"}};
    cases[0].second = L"\"wide\" is not a valid value of \"ASPH\"";
    cases[1].first.properties = {{L"NOPE", L"1"}};
    cases[1].second = L"there is no property \"NOPE\"";
    cases[2].first.name = L"A3 landscape";
    cases[2].second = L"the name \"A3 landscape\" is taken";
    cases[3].first.addedComponents = {{L"00DIM"}};  // not a registered type
    cases[3].second = L"there is no component type \"00DIM\"";
    cases[4].first.addedComponents = {{L"01SCHEME"}};
    cases[4].second = L"already holds a component of type \"01SCHEME\"";
    cases[5].first.removedComponents = {scheme};
    cases[5].second = L"component \"" + scheme + L"\" holds component";
    cases[6].first.removedComponents = {ComponentOfType(L"01CMMNT")->GetInternalId(), scheme};
    cases[6].first.addedComponents = {{L"05MANH_T"}};
    cases[6].second = L"goes under a component of type \"01SCHEME\", which it does not hold";
    for (const auto& [edit, reason] : cases) {
        EXPECT_EQ(Run(&edit), 0) << reason;
        EXPECT_EQ(error.rfind(L"Definition \"A4 portrait\": ", 0), 0u) << error;
        EXPECT_NE(error.find(reason), std::wstring::npos) << error;
        EXPECT_EQ(acedInputScript()->pendingCount(), 1u);  // the user was not asked
    }
}

TEST_F(DefinitionDialog, CancelledDialogsChangeNothing) {
    CASDefinitionEdit edit;
    edit.name = L"Changed";
    for (const wchar_t* script : {L"text Cancel", L"escape", L""}) {
        EXPECT_EQ(Run(&edit, script), 0) << script;
        EXPECT_TRUE(error.empty());
    }
    EXPECT_EQ(Run(nullptr), 1);  // nothing changed, but confirmed
    EXPECT_EQ(definition->GetName(), L"A4 portrait");
}
