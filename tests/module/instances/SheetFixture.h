#pragma once
// A new drawing document for each test, and sheets drawn into it as the scheme editor draws them.

#include "module/instances/CASElementInstance.h"
#include "module/instances/CASInstance.h"

#include "framework/cad/CXimoCDraw.h"
#include "framework/systems/CGisSystem.h"
#include "host/documents/AcApDocManager.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

namespace XimoGis::AssemblySchemes::Testing {

class SheetFixture : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(acDocManager->appContextNewDocument(), Acad::eOk);
        document = acDocManager->curDocument();
        database = document->database();
    }
    void TearDown() override { acDocManager->closeDocument(document); }

    static AcDbObjectId Line(const AcGePoint3d& base, double x1, double y1, double x2, double y2) {
        return CXimoCDraw::line(base + AcGeVector3d(x1, y1, 0), base + AcGeVector3d(x2, y2, 0)).objectId();
    }

    // A 420 x 297 sheet of definition {DEF-A3} written for `system`: points at the base point
    // (tag 1) and the upper corner (tag 2), the frame polyline (tag 4), two "00FRAME" lines and a
    // "04BOM" text.
    boost::shared_ptr<CASInstance> DrawSheet(System::CGisSystem* system, const AcGePoint3d& base,
                                             const wchar_t* node = L"{NODE-7}") {
        auto sheet = boost::make_shared<CASInstance>();
        sheet->SetDefinitionId(L"{DEF-A3}");
        sheet->SetRefNode(node);
        sheet->SetBasePoint(base);
        sheet->SetWidth(420.0);
        sheet->SetHeight(297.0);
        const AcGePoint3d top(base.x + 420.0, base.y + 297.0, base.z);
        sheet->SetBasePointEntity(CXimoCDraw::point(base).objectId());
        sheet->SetSecondGeneralEntity(CXimoCDraw::point(top).objectId());
        sheet->SetThirdGeneralEntity(
            CXimoCDraw::polylineLW({base, {top.x, base.y, 0}, top, {base.x, top.y, 0}}, true).objectId());
        sheet->AddDrawnByComponent(L"00FRAME", {Line(base, 5, 5, 415, 5), Line(base, 5, 292, 415, 292)});
        const AcGePoint3d title = base + AcGeVector3d(300, 20, 0);
        sheet->AddDrawnByComponent(L"04BOM", {CXimoCDraw::text(title, L"Specifikacija", 3.0).objectId()});
        sheet->Serialize(system);
        return sheet;
    }

    // An element at (x, y) of the sheet: a circle holding its data and a line, also listed under
    // "01SCHEME" (which lists exactly the element entities); the sheet is written again.
    boost::shared_ptr<CASElementInstance> AddElement(CASInstance& sheet, System::CGisSystem* system,
                                                     const wchar_t* catalog, const wchar_t* provider, double x,
                                                     double y) {
        AcGePoint3d base;
        sheet.GetBasePoint(base);
        const AcDbObjectId holder = CXimoCDraw::circle(base + AcGeVector3d(x, y, 0), 4.0).objectId();
        CASElementInstance::MarkAsDataHolder(holder);
        const AcDbObjectIdArray ids{holder, Line(base, x, y, x + 10, y)};
        auto element = sheet.CreateElementInstance(provider, catalog, ids);
        sheet.AddDrawnByComponent(L"01SCHEME", ids);
        sheet.Serialize(system);
        return element;
    }

    AcApDocument* document = nullptr;
    AcDbDatabase* database = nullptr;
    System::CGisSystem water{1, L"Vodovod", 8, {}, L""};
    System::CGisSystem sewer{2, L"Kanalizacija", 8, {}, L""};
};

}  // namespace XimoGis::AssemblySchemes::Testing
