#include "module/definitions/CASDefinitionFactory.h"

#include "module/definitions/CASDefinition.h"
#include "module/definitions/CASRepository.h"

#include "framework/systems/CGisSystem.h"
#include "host/input/AcEdInputScript.h"

#include <gtest/gtest.h>

#include <memory>

using namespace XimoGis::AssemblySchemes;
using XimoGis::CRepositoryItem;
using XimoGis::etAssemblyScheme;

namespace {

class DefinitionFactory : public ::testing::Test {
protected:
    void TearDown() override {
        CASDefinitionFactory::Instance(nullptr)->ClearEditorInput();
        acedInputScript()->clear();
    }
    std::unique_ptr<CASDefinition> Made(CRepositoryItem* item) {
        return std::unique_ptr<CASDefinition>(dynamic_cast<CASDefinition*>(item));
    }

    CASRepository repository;
    CASDefinitionFactory* factory = CASDefinitionFactory::Instance(&repository);
    XimoGis::System::CGisSystem water{1, L"Vodovod", 8, {}, L""};
};

}  // namespace

TEST_F(DefinitionFactory, NewDefinitionsGetTheNextFreeNameAndTheSchemeTopology) {
    EXPECT_EQ(factory->GetRepo(), &repository);
    const auto first = Made(factory->CreateRepositoryItem(etAssemblyScheme, &water));
    EXPECT_EQ(first->GetName(), L"Assembly scheme 1");
    EXPECT_EQ(first->GetTopologyFunction(), 50001);
    EXPECT_EQ(first->GetTopologyType(), 8);
    auto* taken = new CASDefinition();
    taken->SetName(L"Assembly scheme 1");
    repository.AddRepositoryItem(taken, 0);
    const auto second = Made(factory->CreateRepositoryItem(etAssemblyScheme, nullptr));
    EXPECT_EQ(second->GetName(), L"Assembly scheme 2");
    EXPECT_EQ(second->GetTopologyFunction(), 0);
    EXPECT_EQ(second->GetTopologyType(), 0);
    // Copies are made of definitions only, with or without the user.
    EXPECT_EQ(Made(factory->CreateRepositoryItemUI(taken))->GetXML(), taken->GetXML());
    const CRepositoryItem plain;
    EXPECT_FALSE(factory->CreateRepositoryItem(&plain));

    CASDefinitionFactory::Instance(nullptr);
    acedInputScript()->addEnter();
    EXPECT_FALSE(factory->CreateRepositoryItem(etAssemblyScheme, &water));
    EXPECT_FALSE(factory->CreateRepositoryItemUI(etAssemblyScheme, &water));
    EXPECT_EQ(factory->EditRepositoryItemUI(taken), 0);
    EXPECT_EQ(acedInputScript()->pendingCount(), 1u);
}

TEST_F(DefinitionFactory, TheUserDecidesWhatIsKept) {
    EXPECT_FALSE(factory->CreateRepositoryItemUI(etAssemblyScheme, &water));  // no answer: cancelled
    CASDefinitionEdit edit;
    edit.properties = {{L"ASPW", L"420"}};
    factory->SetEditorInput(edit);
    acedInputScript()->addScript(L"text OK; text Cancel; enter");
    const auto made = Made(factory->CreateRepositoryItemUI(etAssemblyScheme, &water));
    ASSERT_TRUE(made);
    EXPECT_DOUBLE_EQ(made->GetPaperWidth(), 420.0);
    EXPECT_EQ(made->GetTopologyType(), 8);
    edit.properties = {{L"ASPH", L"100"}};
    factory->SetEditorInput(edit);
    EXPECT_EQ(factory->EditRepositoryItemUI(made.get()), 0);
    EXPECT_EQ(factory->EditRepositoryItemUI(made.get()), 1);
    EXPECT_DOUBLE_EQ(made->GetPaperHeight(), 100.0);

    edit.properties = {{L"ASPW", L"wide"}};
    factory->SetEditorInput(edit);
    EXPECT_FALSE(factory->CreateRepositoryItemUI(etAssemblyScheme, &water));
    EXPECT_NE(factory->GetLastEditorError().find(L"\"wide\" is not a valid value of \"ASPW\""), std::wstring::npos);
}
