#include "module/definitions/CASDefinitionDialog.h"

#include "module/definitions/CASDefinition.h"
#include "module/definitions/CASRepository.h"

#include <gtest/gtest.h>

using namespace XimoGis::AssemblySchemes;

namespace {

class DefinitionDialog : public ::testing::Test {
protected:
    void SetUp() override {
        definition = new CASDefinition();
        definition->SetId(L"{D}");
        definition->SetName(L"A4 portrait");
        repository.AddRepositoryItem(definition, 1);
        auto* other = new CASDefinition();
        other->SetName(L"A3 landscape");
        repository.AddRepositoryItem(other, 0);
    }
    // Runs the dialog on the definition; on refusal checks that nothing changed.
    int Run(const CASDefinitionEdit& edit) {
        const std::wstring before = definition->GetXML();
        CASDefinitionDialog dialog(definition, &repository, CASDefinitionDialog::eModeEdit, &edit);
        const int result = dialog.DoModal();
        error = dialog.GetError();
        if (!result) {
            EXPECT_EQ(definition->GetXML(), before);
        }
        return result;
    }
    static CASDefinitionEdit Confirmed() {
        CASDefinitionEdit edit;
        edit.confirm = true;
        return edit;
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
    CASDefinitionEdit edit = Confirmed();
    edit.name = L"A3 portrait";
    edit.properties = {{L"ASPW", L"297"}, {L"ASPH", L"420"}, {L"LS_SCALE_X", L"0.05"}, {L"ASFLLT", L"DASHED"}};
    edit.addedComponents = {{L"01SCHEME", 10.0, 20.0}, {L"03POS", 0.0, 0.0}, {L"05TEXT", 1.5, 2.5}, {L"05TEXT"}};
    ASSERT_EQ(Run(edit), 1) << error;
    EXPECT_TRUE(error.empty());
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
    EXPECT_EQ(definition->GetId(), L"{D}");

    // The saved definition reads back as it is now.
    CASDefinition back;
    ASSERT_EQ(back.ParseXML(definition->GetXML().c_str()), 1);
    EXPECT_EQ(back.GetXML(), definition->GetXML());
}

TEST_F(DefinitionDialog, ComponentsAreRemovedChildrenFirst) {
    CASDefinitionEdit add = Confirmed();
    add.addedComponents = {{L"01SCHEME"}, {L"01CMMNT"}};
    ASSERT_EQ(Run(add), 1) << error;
    const std::wstring scheme = ComponentOfType(L"01SCHEME")->GetInternalId();
    const std::wstring comment = ComponentOfType(L"01CMMNT")->GetInternalId();

    CASDefinitionEdit remove = Confirmed();
    remove.removedComponents = {scheme};
    EXPECT_EQ(Run(remove), 0);
    EXPECT_NE(error.find(L"holds component \"" + comment + L"\""), std::wstring::npos) << error;
    remove.removedComponents = {comment, scheme};
    ASSERT_EQ(Run(remove), 1) << error;
    EXPECT_TRUE(definition->GetComponents().empty());
}

TEST_F(DefinitionDialog, InvalidChangesAreRefusedWithTheirReason) {
    struct Case {
        CASDefinitionEdit edit;
        const wchar_t* reason;
    };
    std::vector<Case> cases(9, {Confirmed(), L""});
    cases[0].edit.properties = {{L"ASPW", L"wide"}};
    cases[0].reason = L"\"wide\" is not a valid value of \"ASPW\"";
    cases[1].edit.properties = {{L"ASPW", L"300"}, {L"NOPE", L"1"}};
    cases[1].reason = L"there is no property \"NOPE\"";
    cases[2].edit.properties = {{L"ASDPF", L"1.5e400"}};
    cases[2].reason = L"is not a valid value of \"ASDPF\"";
    cases[3].edit.name = L"A3 landscape";
    cases[3].reason = L"the name \"A3 landscape\" is taken";
    cases[4].edit.addedComponents = {{L"00DIM"}};  // not a registered type
    cases[4].reason = L"there is no component type \"00DIM\"";
    cases[5].edit.addedComponents = {{L"00FRAME"}, {L"00FRAME"}};
    cases[5].reason = L"already holds a component of type \"00FRAME\"";
    cases[6].edit.addedComponents = {{L"05MANH_T"}};
    cases[6].reason = L"goes under a component of type \"01SCHEME\", which it does not hold";
    cases[7].edit.removedComponents = {L"{GONE}"};
    cases[7].reason = L"there is no component \"{GONE}\"";
    cases[8].edit.addedComponents = {{L"00FRAME"}};
    cases[8].edit.properties = {{L"ASPH", L""}};
    cases[8].reason = L"\"\" is not a valid value of \"ASPH\"";
    for (const Case& c : cases) {
        EXPECT_EQ(Run(c.edit), 0) << c.reason;
        EXPECT_EQ(error.rfind(L"Definition \"A4 portrait\": ", 0), 0u) << error;
        EXPECT_NE(error.find(c.reason), std::wstring::npos) << error;
    }

    definition->SetName(L"");
    EXPECT_EQ(Run(Confirmed()), 0);
    EXPECT_NE(error.find(L"a definition needs a name"), std::wstring::npos) << error;
}

TEST_F(DefinitionDialog, CancelledOrUnansweredDialogsChangeNothing) {
    CASDefinitionEdit cancelled;
    cancelled.name = L"Changed";
    cancelled.properties = {{L"ASPW", L"1"}};
    EXPECT_EQ(Run(cancelled), 0);
    EXPECT_TRUE(error.empty());
    CASDefinitionDialog unanswered(definition, &repository, CASDefinitionDialog::eModeNew, nullptr);
    EXPECT_EQ(unanswered.DoModal(), 0);
    EXPECT_EQ(unanswered.GetMode(), CASDefinitionDialog::eModeNew);
    EXPECT_EQ(definition->GetName(), L"A4 portrait");
    const CASDefinitionEdit confirmed = Confirmed();
    EXPECT_EQ(CASDefinitionDialog(nullptr, &repository, CASDefinitionDialog::eModeEdit, &confirmed).DoModal(), 0);
    // Without a repository names are not compared.
    CASDefinitionEdit rename = Confirmed();
    rename.name = L"A3 landscape";
    EXPECT_EQ(CASDefinitionDialog(definition, nullptr, CASDefinitionDialog::eModeEdit, &rename).DoModal(), 1);
}
