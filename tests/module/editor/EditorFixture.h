#pragma once
// A workspace whose active water system (1, topology type 8) has scheme layers, a new drawing
// document, and scheme definitions made in memory.

#include "framework/TempFolder.h"
#include "module/components/IASComponentInterface.h"
#include "module/definitions/CASComponentData.h"
#include "module/definitions/CASDefinition.h"
#include "module/editor/CASEditor.h"
#include "module/instances/CASInstance.h"
#include "module/instances/CASInstanceStorage.h"
#include "module/manager/CASManager.h"

#include "framework/cad/CXimoCDraw.h"
#include "framework/repository/CRepositoryManager.h"
#include "framework/systems/CSystemManager.h"
#include "host/documents/AcApDocManager.h"
#include "host/input/AcEdInputScript.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

namespace XimoGis::AssemblySchemes::Testing {

class EditorFixture : public ::testing::Test {
protected:
    void SetUp() override {
        std::wstring error;
        ASSERT_TRUE(systems->OpenWorkspace(folder.Text(), error, true)) << error;
        water = systems->CreateSystem(1, L"Vodovod", 8,
                                      {{L"SCHEME", L"VOD_SCHEME", 7, L"Continuous"},
                                       {L"SCHEME_NP", L"VOD_SCHEME_NP", 8, L"Continuous"},
                                       {L"00FRAME", L"VOD_FRAME", 7, L"Continuous"},
                                       {L"01CMMNT", L"VOD_COMMENTS", 2, L"Continuous"}},
                                      error);
        ASSERT_TRUE(water && systems->SetActiveSystem(water, error)) << error;
        ASSERT_EQ(acDocManager->appContextNewDocument(), Acad::eOk);
        document = acDocManager->curDocument();
        database = document->database();
        acedInputScript()->clear();
        manager->ReloadInstanceStorage();
    }
    void TearDown() override {
        acedInputScript()->clear();
        acDocManager->closeDocument(document);
        systems->CloseWorkspace();
    }

    // A definition of the paper size and frame switch holding the components given by type id.
    boost::shared_ptr<CASDefinition> Definition(double width, double height, int paperFrame,
                                                std::initializer_list<const wchar_t*> components = {}) {
        auto definition = boost::make_shared<CASDefinition>();
        definition->SetId(L"{DEF-" + std::to_wstring(++m_definitions) + L"}");
        auto& properties = *definition->GetProperties();
        properties.SetPropertyValue(L"ASPW", width);
        properties.SetPropertyValue(L"ASPH", height);
        properties.SetPropertyValue(L"ASDPF", paperFrame);
        for (const wchar_t* type : components)
            definition->AddComponent(manager->GetASComponentById(type)->CreateComponentData());
        return definition;
    }
    // Makes the definitions the active system's repository, as the definition editor saves them.
    void Store(std::initializer_list<const CASDefinition*> definitions) const {
        std::wstring xml = L"<schemes version=\"1\" exploded=\"0\">";
        for (const CASDefinition* definition : definitions) xml += definition->GetXML();
        std::wstring error;
        ASSERT_TRUE(water->SetSubXMLByReferenceId(L"AS", xml + L"</schemes>", error)) << error;
        CRepositoryManager::GetSystemRepository(water, L"AS", CRepositoryManager::kReload);
    }
    // The sheet drawn, serialised and stored as the grid draws its sheets.
    boost::shared_ptr<CASInstance> DrawStored(CASDefinition& definition, AcGePoint3d base) {
        auto sheet = editor->Draw(base, &definition, nullptr);
        sheet->Serialize(water);
        manager->GetASIStorage()->AddASInstance(sheet);
        return sheet;
    }
    static std::wstring LayerOf(AcDbObjectId id) {
        CXimoCEntityPtr entity(id, AcDb::kForRead);
        return entity ? entity->layer() : L"(none)";
    }
    AcDbObjectId Flange(const AcGePoint3d& start, const AcGePoint3d& end) const {
        database->registerApplication(L"AMS_PRIRUBNICA");
        CXimoCEntityPtr line = CXimoCDraw::line(start, end);
        line->setXData(AcDbXDataApp{L"AMS_PRIRUBNICA", {AcDbXDataValue::int16(1)}});
        return line.objectId();
    }
    static AcDbObjectId Line(const AcGePoint3d& start, const AcGePoint3d& end) {
        return CXimoCDraw::line(start, end).objectId();
    }
    // An elbow: a flange facing left on the y axis, one facing up at (10, 10) and its bend; the
    // flange axes meet at (10, 0).
    AcDbObjectIdArray Elbow(const AcGeVector3d& at = {0, 0, 0}) const {
        const AcGePoint3d o = AcGePoint3d::kOrigin + at;
        return {Flange(o + AcGeVector3d(0, -3, 0), o + AcGeVector3d(0, 3, 0)),
                Flange(o + AcGeVector3d(7, 10, 0), o + AcGeVector3d(13, 10, 0)),
                Line(o, o + AcGeVector3d(10, 0, 0)), Line(o + AcGeVector3d(10, 0, 0), o + AcGeVector3d(10, 10, 0))};
    }

    XimoGis::Testing::TempFolder folder;
    System::CSystemManager* systems = System::CSystemManager::Instance();
    CASManager* manager = CASManager::Instance();
    CASEditor* editor = CASEditor::Instance();
    System::CGisSystem* water = nullptr;
    AcApDocument* document = nullptr;
    AcDbDatabase* database = nullptr;

private:
    int m_definitions = 0;
};

}  // namespace XimoGis::AssemblySchemes::Testing
