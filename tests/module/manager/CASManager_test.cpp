#include "module/manager/CASManager.h"

#include "framework/TempFolder.h"
#include "module/components/IASComponentInterface.h"
#include "module/definitions/CASDefinition.h"
#include "module/instances/CASElementInstance.h"
#include "module/instances/CASInstance.h"
#include "module/instances/CASInstanceStorage.h"
#include "module/manager/CASManagerTestAccess.h"

#include "framework/catalog/CCatalog.h"
#include "framework/config/CModuleConfiguration.h"
#include "framework/dialogs/CCustomDialogRegistry.h"
#include "framework/logging/CLogEngine.h"
#include "framework/systems/CSystemManager.h"
#include "framework/workspace/CWsManager.h"
#include "host/documents/AcApDocManager.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <algorithm>
#include <regex>
#include <string>
#include <vector>

using namespace XimoGis::AssemblySchemes;
using XimoGis::System::CGisSystem;
using XimoGis::System::CSystemManager;
using XimoGis::Testing::TempFolder;

namespace {

const std::vector<std::wstring> kComponentOrder = {L"00FRAME", L"01CMMNT", L"01SCHEME", L"02FREE",
                                                   L"02MINISCHEME", L"03INFOTABLE", L"03POS", L"04BOM",
                                                   L"05MANH_S", L"05MANH_T", L"05TEXT"};

std::string Repository(const std::string& definitionId) {
    return "<schemes version=\"1\" exploded=\"0\"><asDefinition id=\"" + definitionId +
           "\" name=\"Sheet\"/></schemes>";
}

// The journal lines expected when every component hears `event` with `definition`.
std::vector<std::wstring> Everyone(const std::wstring& event, const std::wstring& definition) {
    std::vector<std::wstring> lines;
    for (const std::wstring& id : kComponentOrder) lines.push_back(id + L" " + event + L" " + definition);
    return lines;
}

// A workspace with a water system (topology type 8) holding definition {W} and a second system
// of another topology type holding {O}; no system is active.
class ManagerTest : public ::testing::Test {
protected:
    void SetUp() override {
        std::wstring error;
        ASSERT_TRUE(systems->OpenWorkspace(folder.Text(), error, true)) << error;
        water = systems->CreateSystem(1, L"Vodovod", 8, {}, error);
        other = systems->CreateSystem(2, L"Plin", 4, {}, error);
        ASSERT_TRUE(water && other) << error;
        folder.Write("systems/1/AS.xml", Repository("{W}"));
        folder.Write("systems/2/AS.xml", Repository("{O}"));
        instance.SetDefinitionId(L"{W}");
    }
    void TearDown() override {
        manager->SetBlockASListeners(0);
        systems->CloseWorkspace();
    }
    void Activate(CGisSystem* system) {
        std::wstring error;
        ASSERT_TRUE(systems->SetActiveSystem(system, error)) << error;
    }

    TempFolder folder;
    CSystemManager* systems = CSystemManager::Instance();
    CASManager* manager = CASManager::Instance();
    CGisSystem* water = nullptr;
    CGisSystem* other = nullptr;
    CASInstance instance;
    CASElementInstance element;
};

class Provider : public IAssemblyElementTypeProvider {
public:
    explicit Provider(const wchar_t* id) : IAssemblyElementTypeProvider(id, eAssemblyElementUndefined) {}
    std::wstring GetDescription() const override { return L"test"; }
    int CheckCatalogItem(const XimoGis::Data::CCatalogItem*, std::wstring&) const override { return 1; }
};

}  // namespace

TEST_F(ManagerTest, TheSingleManagerRegistersElevenComponentTypesInIdOrder) {
    EXPECT_EQ(CASManager::Instance(), manager);
    std::vector<boost::shared_ptr<IASComponentInterface>> components;
    components.push_back(nullptr);  // kept: the list is appended to
    manager->GetASComponents(components);
    ASSERT_EQ(components.size(), 12u);
    EXPECT_FALSE(components[0]);
    for (std::size_t i = 0; i < kComponentOrder.size(); ++i) {
        EXPECT_EQ(components[i + 1]->GetId(), kComponentOrder[i]);
        EXPECT_EQ(manager->GetASComponentById(kComponentOrder[i].c_str()), components[i + 1]);
    }
    EXPECT_FALSE(manager->GetASComponentById(L"00DIM"));
    EXPECT_FALSE(manager->GetASComponentById(L"00frame"));

    auto* dialogs = XimoGis::Data::CCustomDialogRegistry::Instance();
    for (const wchar_t* id : {L"IT_BOM_DATAPICKER", L"IT_BLOCK_DLG", L"CD_ASDATAPICKER_NODE"})
        EXPECT_TRUE(dialogs->GetDialog(id)) << id;
}

TEST_F(ManagerTest, ElementTypeProvidersAreFoundByTheirExactId) {
    auto pipe = boost::make_shared<Provider>(L"PIPE");
    manager->RegisterAssemblyElement(pipe);
    EXPECT_EQ(manager->GetAETypeProvider(L"PIPE"), pipe);
    EXPECT_FALSE(manager->GetAETypeProvider(L"pipe"));
    EXPECT_EQ(manager->GetAssemblyElementTypeRegistry()->erase(L"PIPE"), 1u);
}

TEST_F(ManagerTest, DefinitionsAreFoundInTheActiveSchemeSystemOnly) {
    EXPECT_EQ(manager->GetASDefinitionById(L"{W}"), nullptr);  // no active system
    Activate(other);
    EXPECT_EQ(manager->GetASDefinitionById(L"{O}"), nullptr);  // it exists, but not for schemes
    Activate(water);
    CASDefinition* definition = manager->GetASDefinitionById(L"{W}");
    ASSERT_NE(definition, nullptr);
    EXPECT_EQ(definition->GetName(), L"Sheet");
    EXPECT_EQ(manager->GetASDefinitionById(L"{w}"), nullptr);
}

TEST_F(ManagerTest, SystemsAreFoundByDefinitionWithTheirRepositoryReadAgain) {
    std::wstring error;
    CGisSystem* sewer = systems->CreateSystem(3, L"Kanalizacija", 8, {}, error);
    ASSERT_TRUE(sewer) << error;
    EXPECT_EQ(manager->GetSystemByASDefinitionId(L"{W}"), water);
    EXPECT_EQ(manager->GetSystemByASDefinitionId(L"{O}"), nullptr);  // other topology type
    EXPECT_EQ(manager->GetSystemByASDefinitionId(L"{S}"), nullptr);  // the sewer has no file yet
    folder.Write("systems/3/AS.xml", Repository("{S}"));
    EXPECT_EQ(manager->GetSystemByASDefinitionId(L"{S}"), sewer);
    // A file that does not read is passed over.
    folder.Write("systems/1/AS.xml", "<schemes>");
    EXPECT_EQ(manager->GetSystemByASDefinitionId(L"{W}"), nullptr);
}

TEST_F(ManagerTest, EachDocumentHasItsOwnStorageEmptiedWhenASystemGoes) {
    ASSERT_EQ(acDocManager->appContextNewDocument(), Acad::eOk);
    AcApDocument* first = acDocManager->curDocument();
    const auto storage = manager->GetASIStorage();
    ASSERT_TRUE(storage && storage->GetASRegistry().empty());
    storage->AddASInstance(boost::make_shared<CASInstance>());
    manager->SaveInstanceStorage();
    EXPECT_EQ(manager->GetASIStorage()->GetASRegistry().size(), 1u);
    manager->ReloadInstanceStorage();  // cleared first: the drawing holds no sheet
    EXPECT_TRUE(storage->GetASRegistry().empty());
    storage->AddASInstance(boost::make_shared<CASInstance>());
    ASSERT_EQ(acDocManager->appContextNewDocument(), Acad::eOk);
    EXPECT_TRUE(manager->GetASIStorage()->GetASRegistry().empty());
    acDocManager->closeDocument(acDocManager->curDocument());
    ASSERT_EQ(acDocManager->curDocument(), first);
    EXPECT_EQ(manager->GetASIStorage(), storage);

    // The responder drops the schemes of the current drawing, whichever system goes.
    std::wstring error;
    ASSERT_TRUE(systems->DeleteSystemEntities(other, error)) << error;
    EXPECT_TRUE(storage->GetASRegistry().empty());
    storage->AddASInstance(boost::make_shared<CASInstance>());
    ASSERT_TRUE(systems->DeleteSystem(other, error)) << error;
    EXPECT_TRUE(storage->GetASRegistry().empty());
    acDocManager->closeDocument(first);
}

TEST_F(ManagerTest, EveryEventReachesEveryComponentInIdOrder) {
    Activate(water);
    Testing::ScopedRecorders recorders;
    std::vector<CASElementInstance*> elements = {&element, &element};
    manager->Raise_OnAfterASElementInserted(&instance, nullptr, &element);
    manager->Raise_OnBeforeASElementDeleted(&instance, nullptr, &element);
    manager->Raise_OnElementPositionChanged(&instance, nullptr, elements);
    manager->Raise_OnRequestUpdateBOM(&instance, nullptr);
    manager->Raise_OnRequestUpdatePositionLabels(&instance, nullptr);
    std::vector<std::wstring> expected;
    for (const wchar_t* event : {L"inserted", L"deleting", L"positions 2", L"bom", L"labels"}) {
        const auto lines = Everyone(event, L"{W}");
        expected.insert(expected.end(), lines.begin(), lines.end());
    }
    EXPECT_EQ(recorders.journal, expected);
    CASDefinition given;  // passed on as it is
    given.SetId(L"{GIVEN}");
    recorders.journal.clear();
    manager->Raise_OnRequestUpdateBOM(&instance, &given);
    EXPECT_EQ(recorders.journal, Everyone(L"bom", L"{GIVEN}"));
}

TEST_F(ManagerTest, WithoutAnActiveSchemeSystemListenersGetNoDefinition) {
    Testing::ScopedRecorders recorders;
    manager->Raise_OnRequestUpdatePositionLabels(&instance, nullptr);
    EXPECT_EQ(recorders.journal, Everyone(L"labels", L"(null)"));

    instance.SetDefinitionId(L"{O}");
    Activate(other);
    recorders.journal.clear();
    manager->Raise_OnAfterASElementInserted(&instance, nullptr, &element);
    EXPECT_EQ(recorders.journal, Everyone(L"inserted", L"(null)"));
}

TEST_F(ManagerTest, EventsAreDroppedWithoutTheirInstanceOrElementAndWhileBlocked) {
    Testing::ScopedRecorders recorders;
    std::vector<CASElementInstance*> none;
    manager->Raise_OnAfterASElementInserted(nullptr, nullptr, &element);
    manager->Raise_OnAfterASElementInserted(&instance, nullptr, nullptr);
    manager->Raise_OnBeforeASElementDeleted(&instance, nullptr, nullptr);
    manager->Raise_OnElementPositionChanged(nullptr, nullptr, none);
    manager->Raise_OnRequestUpdateBOM(nullptr, nullptr);
    manager->Raise_OnRequestUpdatePositionLabels(nullptr, nullptr);
    manager->SetBlockASListeners(2);
    EXPECT_EQ(manager->AreASListenersBlocked(), 2);
    manager->Raise_OnAfterASElementInserted(&instance, nullptr, &element);
    manager->Raise_OnBeforeASElementDeleted(&instance, nullptr, &element);
    manager->Raise_OnElementPositionChanged(&instance, nullptr, none);
    manager->Raise_OnRequestUpdateBOM(&instance, nullptr);
    manager->Raise_OnRequestUpdatePositionLabels(&instance, nullptr);
    EXPECT_TRUE(recorders.journal.empty());
    // A flag, not a counter: one 0 unblocks. An empty element list is still news.
    manager->SetBlockASListeners(1);
    manager->SetBlockASListeners(0);
    manager->Raise_OnElementPositionChanged(&instance, nullptr, none);
    EXPECT_EQ(recorders.journal, Everyone(L"positions 0", L"(null)"));
}

TEST_F(ManagerTest, ThePositionEventIsTracedEvenWhenItIsDropped) {
    auto* engine = XimoGis::Logging::CLogEngine::Instance();
    engine->Configure(true, 3, folder.Text() + L"/trace.log");
    std::vector<CASElementInstance*> none;
    manager->Raise_OnElementPositionChanged(nullptr, nullptr, none);
    manager->Raise_OnRequestUpdateBOM(&instance, nullptr);  // not traced
    engine->Configure(true, 2, folder.Text() + L"/trace.log");
    manager->Raise_OnElementPositionChanged(&instance, nullptr, none);  // above the threshold
    engine->Configure(false, 3, L"");

    // Exactly one entry and one exit line, from the first call only.
    const std::regex line(
        "\\[[^\\]]*\\] AssemblySchemes_Manager {9}\\(\\d{5}\\): "
        "\\[XimoGis::AssemblySchemes::CASManager::Raise_OnElementPositionChanged\\], (Entering|Exiting) function \\n");
    const std::string log = folder.Read("trace.log");
    std::vector<std::string> kinds;
    for (auto it = std::sregex_iterator(log.begin(), log.end(), line); it != std::sregex_iterator(); ++it)
        kinds.push_back((*it)[1]);
    EXPECT_EQ(kinds, (std::vector<std::string>{"Entering", "Exiting"})) << log;
    EXPECT_EQ(std::count(log.begin(), log.end(), '\n'), 2) << log;
}

TEST_F(ManagerTest, DialogsReportWhatTheyWouldShow) {
    auto* log = XimoGis::Workspace::CWsManager::Instance();
    log->ClearMessages();
    auto scheme = boost::make_shared<CASInstance>();
    scheme->SetDefinitionId(L"{W}");
    manager->GetASIStorage()->AddASInstance(scheme);
    manager->ShowASManager();
    manager->ShowCatalogConverter();
    const auto& messages = log->GetMessages();
    ASSERT_EQ(messages.size(), 3u);
    EXPECT_EQ(messages[0].text, L"Scheme manager: 1 scheme(s) in the current drawing");
    EXPECT_EQ(messages[1].text, L"Scheme of definition \"{W}\"");
    EXPECT_EQ(messages[1].guid, scheme->GetGuid());
    EXPECT_EQ(messages[2].text.rfind(L"Catalog converter", 0), 0u);
    log->ClearMessages();
    manager->GetASIStorage()->Clear();
}

TEST(CASManager, NewElementBlockNamesAreFreeInTheSupportFoldersBlockFolder) {
    EXPECT_EQ(CASManager::Instance()->GetASElementsBlockPath(), L"");  // no workspace open
    TempFolder folder;
    folder.Write("workspace.xml", "<workspace name=\"Blocks\"><paths support=\"data/support\"/></workspace>");
    std::wstring error;
    ASSERT_TRUE(XimoGis::CModuleConfiguration::Instance()->Open(folder.Text(), error)) << error;
    EXPECT_EQ(CASManager::Instance()->GetASElementsBlockPath(), folder.Text() + L"/data/support/AssemblyElements/");
    XimoGis::Data::CCatalog catalog(L"ASSEMBLYSCHEMES_CATALOG");
    auto* cap = catalog.AddItem(nullptr, L"", L"Cap", false, L"ELEMENT_BLOCK01", error);
    folder.Write("data/support/AssemblyElements/_Cap_5.dxf", "");
    EXPECT_EQ(CASManager::Instance()->GetBlockFileName(eViewLeft, cap), L"_Cap_5_1");
    XimoGis::CModuleConfiguration::Instance()->Close();
}
