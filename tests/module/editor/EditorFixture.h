#pragma once
// A workspace whose active water system (1, topology type 8) has the scheme layers, a new drawing
// document, and scheme definitions made in memory as the editor draws them.

#include "framework/TempFolder.h"
#include "module/components/IASComponentInterface.h"
#include "module/definitions/CASComponentData.h"
#include "module/definitions/CASDefinition.h"
#include "module/editor/CASEditor.h"
#include "module/instances/CASInstance.h"
#include "module/instances/CASInstanceStorage.h"
#include "module/manager/CASManager.h"

#include "framework/cad/CXimoCDraw.h"
#include "framework/cad/CXimoCEntityPtr.h"
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
                                       {L"01SCHEME", L"VOD_ELEMENTS", 7, L"Continuous"},
                                       {L"01CMMNT", L"VOD_COMMENTS", 2, L"Continuous"},
                                       {L"05MANH_S", L"VOD_MANHOLE_SIDE", 4, L"Continuous"},
                                       {L"05MANH_T", L"VOD_MANHOLE_TOP", 4, L"Continuous"}},
                                      error);
        ASSERT_TRUE(water) << error;
        ASSERT_TRUE(systems->SetActiveSystem(water, error)) << error;
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

    // A definition of the paper size with the frame switch, holding the components given by
    // type id, each with its type's default record.
    boost::shared_ptr<CASDefinition> Definition(double width, double height, int paperFrame,
                                                std::initializer_list<const wchar_t*> components = {}) {
        auto definition = boost::make_shared<CASDefinition>();
        definition->SetId(L"{DEF-" + std::to_wstring(++m_definitions) + L"}");
        auto& properties = *definition->GetProperties();
        properties.SetPropertyValue(L"ASPW", width);
        properties.SetPropertyValue(L"ASPH", height);
        properties.SetPropertyValue(L"ASDPF", paperFrame);
        for (const wchar_t* type : components) definition->AddComponent(Component(type));
        return definition;
    }
    boost::shared_ptr<CASComponentData> Component(const wchar_t* type) const {
        return manager->GetASComponentById(type)->CreateComponentData();
    }
    // The sheet drawn, serialised and stored as the grid draws its sheets.
    boost::shared_ptr<CASInstance> DrawStored(CASDefinition& definition, AcGePoint3d base,
                                              Topology::CNode* node = nullptr) {
        auto sheet = editor->Draw(base, &definition, node);
        sheet->Serialize(water);
        manager->GetASIStorage()->AddASInstance(sheet);
        return sheet;
    }
    static std::wstring LayerOf(AcDbObjectId id) {
        CXimoCEntityPtr entity(id, AcDb::kForRead);
        return entity ? entity->layer() : L"(none)";
    }
    static bool IsErased(AcDbObjectId id) { return id.isErased(); }
    // A line marked as a flange line, and a plain line.
    AcDbObjectId Flange(const AcGePoint3d& start, const AcGePoint3d& end) const {
        database->registerApplication(L"AMS_PRIRUBNICA");
        CXimoCEntityPtr line = CXimoCDraw::line(start, end);
        line->setXData(AcDbXDataApp{L"AMS_PRIRUBNICA", {AcDbXDataValue::int16(1)}});
        return line.objectId();
    }
    static AcDbObjectId Line(const AcGePoint3d& start, const AcGePoint3d& end) {
        return CXimoCDraw::line(start, end).objectId();
    }
    // An elbow drawn at `at`: a flange facing left on the y axis, one facing up at (10, 10), and
    // its bend; the flange axes meet at (10, 0).
    AcDbObjectIdArray Elbow(const AcGeVector3d& at = {0, 0, 0}) const { return ElbowAt(at); }
    AcDbObjectIdArray ElbowAt(const AcGeVector3d& at) const {
        const AcGePoint3d o = AcGePoint3d::kOrigin + at;
        return {Flange(o + AcGeVector3d(0, -3, 0), o + AcGeVector3d(0, 3, 0)),
                Flange(o + AcGeVector3d(7, 10, 0), o + AcGeVector3d(13, 10, 0)),
                Line(o + AcGeVector3d(0, 0, 0), o + AcGeVector3d(10, 0, 0)),
                Line(o + AcGeVector3d(10, 0, 0), o + AcGeVector3d(10, 10, 0))};
    }
    // Makes the definitions the active system's repository, as if saved by the definition editor.
    void Store(std::initializer_list<const CASDefinition*> definitions) const {
        std::wstring xml = L"<schemes version=\"1\" exploded=\"0\">";
        for (const CASDefinition* definition : definitions) xml += definition->GetXML();
        std::wstring error;
        ASSERT_TRUE(water->SetSubXMLByReferenceId(L"AS", xml + L"</schemes>", error)) << error;
        CRepositoryManager::GetSystemRepository(water, L"AS", CRepositoryManager::kReload);
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
