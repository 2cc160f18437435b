#include "module/definitions/CASDefinitionFactory.h"

#include "module/definitions/CASDefinition.h"
#include "module/definitions/CASRepository.h"

#include "framework/systems/CGisSystem.h"

#include <gtest/gtest.h>

#include <memory>

using namespace XimoGis::AssemblySchemes;
using XimoGis::CRepositoryItem;
using XimoGis::etAssemblyScheme;
using XimoGis::System::CGisSystem;

namespace {

class DefinitionFactory : public ::testing::Test {
protected:
    void TearDown() override {
        factory->ClearEditorInput();
        CASDefinitionFactory::Instance(nullptr);
    }
    std::unique_ptr<CASDefinition> Create(CGisSystem* system) {
        return std::unique_ptr<CASDefinition>(
            dynamic_cast<CASDefinition*>(factory->CreateRepositoryItem(etAssemblyScheme, system)));
    }

    CASRepository repository;
    CASDefinitionFactory* factory = CASDefinitionFactory::Instance(&repository);
    CGisSystem water{1, L"Vodovod", 8, {}, L""};
};

}  // namespace

TEST_F(DefinitionFactory, OneFactoryWorksOnTheRepositoryGivenLast) {
    EXPECT_EQ(factory->GetRepo(), &repository);
    CASRepository other;
    EXPECT_EQ(CASDefinitionFactory::Instance(&other), factory);
    EXPECT_EQ(factory->GetRepo(), &other);
    CASDefinitionFactory::Instance(&repository);
}

TEST_F(DefinitionFactory, NewDefinitionsGetTheNextFreeNameAndTheSchemeTopology) {
    const auto first = Create(&water);
    ASSERT_TRUE(first);
    EXPECT_EQ(first->GetName(), L"Assembly scheme 1");
    EXPECT_EQ(first->GetTopologyFunction(), 50001);
    EXPECT_EQ(first->GetTopologyType(), 8);
    EXPECT_EQ(first->GetEntType(), 0);
    EXPECT_DOUBLE_EQ(first->GetPaperWidth(), 210.0);

    auto* taken = new CASDefinition();
    taken->SetName(L"Assembly scheme 1");
    repository.AddRepositoryItem(taken, 0);
    const auto second = Create(nullptr);
    EXPECT_EQ(second->GetName(), L"Assembly scheme 2");
    EXPECT_EQ(second->GetTopologyFunction(), 0);
    EXPECT_EQ(second->GetTopologyType(), 0);

    CASDefinitionFactory::Instance(nullptr);
    EXPECT_FALSE(factory->CreateRepositoryItem(etAssemblyScheme, &water));
    EXPECT_FALSE(factory->CreateRepositoryItemUI(etAssemblyScheme, &water));
    EXPECT_EQ(factory->EditRepositoryItemUI(taken), 0);
}

TEST_F(DefinitionFactory, CopiesAreMadeOfDefinitionsOnly) {
    CASDefinition source;
    source.SetId(L"{S}");
    source.GetProperties()->SetPropertyValue(L"ASPW", 420.0);
    for (int ui = 0; ui < 2; ++ui) {
        std::unique_ptr<CRepositoryItem> copy(ui ? factory->CreateRepositoryItemUI(&source)
                                                 : factory->CreateRepositoryItem(&source));
        auto* definition = dynamic_cast<CASDefinition*>(copy.get());
        ASSERT_NE(definition, nullptr);
        EXPECT_EQ(definition->GetXML(), source.GetXML());
    }
    const CRepositoryItem plain;
    EXPECT_FALSE(factory->CreateRepositoryItem(&plain));
    EXPECT_FALSE(factory->CreateRepositoryItem(nullptr));
}

TEST_F(DefinitionFactory, TheEditorDecidesWhetherANewDefinitionIsKept) {
    EXPECT_FALSE(factory->CreateRepositoryItemUI(etAssemblyScheme, &water));  // no answer: cancelled

    CASDefinitionEdit edit;
    edit.properties = {{L"ASPW", L"420"}};
    factory->SetEditorInput(edit);
    EXPECT_FALSE(factory->CreateRepositoryItemUI(etAssemblyScheme, &water));

    edit.confirm = true;
    factory->SetEditorInput(edit);
    std::unique_ptr<CRepositoryItem> made(factory->CreateRepositoryItemUI(etAssemblyScheme, &water));
    auto* definition = dynamic_cast<CASDefinition*>(made.get());
    ASSERT_NE(definition, nullptr);
    EXPECT_DOUBLE_EQ(definition->GetPaperWidth(), 420.0);
    EXPECT_EQ(definition->GetTopologyType(), 8);
    EXPECT_TRUE(factory->GetLastEditorError().empty());

    edit.properties = {{L"ASPW", L"wide"}};
    factory->SetEditorInput(edit);
    EXPECT_FALSE(factory->CreateRepositoryItemUI(etAssemblyScheme, &water));
    EXPECT_NE(factory->GetLastEditorError().find(L"\"wide\" is not a valid value of \"ASPW\""), std::wstring::npos);
}

TEST_F(DefinitionFactory, EditingReportsWhetherTheUserConfirmed) {
    auto* definition = new CASDefinition();
    definition->SetName(L"A4");
    repository.AddRepositoryItem(definition, 0);
    EXPECT_EQ(factory->EditRepositoryItemUI(definition), 0);
    CASDefinitionEdit edit;
    edit.confirm = true;
    edit.name = L"A4 portrait";
    factory->SetEditorInput(edit);
    EXPECT_EQ(factory->EditRepositoryItemUI(definition), 1);
    EXPECT_EQ(definition->GetName(), L"A4 portrait");
    CRepositoryItem plain;
    EXPECT_EQ(factory->EditRepositoryItemUI(&plain), 0);
}
