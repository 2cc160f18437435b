#pragma once
// Test helpers of the fittings plug-in: the demo catalog, a drawing that is the working database
// while it lives, and the flange lines among drawn entities.

#include "framework/cad/CXimoCEntityPtr.h"
#include "framework/catalog/CCatalogXml.h"
#include "framework/demo/CDemoCatalog.h"
#include "host/entities/AcDbLine.h"

#include <boost/shared_ptr.hpp>

#include <vector>

namespace XimoGis::AssemblySchemes::Fittings::Testing {

inline boost::shared_ptr<Data::CCatalog> ReadDemoCatalog() {
    std::wstring error;
    return Data::CCatalogXml::Read(Demo::CDemoCatalog::GetSourceFile(), error);
}

struct WorkingDrawing {
    AcDbDatabase db;
    WorkingDrawing() { acdbHostApplicationServices()->setWorkingDatabase(&db); }
    ~WorkingDrawing() { acdbHostApplicationServices()->setWorkingDatabase(nullptr); }
    std::size_t ModelSpaceCount() const {
        AcDbBlockTableRecord* model = nullptr;
        if (acdbOpenObject(model, db.modelSpaceId(), AcDb::kForRead) != Acad::eOk) return 0;
        const std::size_t count = model->entityIds().size();
        model->close();
        return count;
    }
};

struct FlangeLine {
    int dn = 0;
    int pn = 0;
    AcGePoint3d middle;
};

// The lines among `ids` that carry flange data: the DN and PN they hold and their midpoints.
inline std::vector<FlangeLine> FlangeLines(const AcArray<AcDbObjectId>& ids) {
    std::vector<FlangeLine> flanges;
    for (const AcDbObjectId& id : ids) {
        CXimoCEntityPtr entity(id, AcDb::kForRead);
        const auto* line = dynamic_cast<AcDbLine*>(entity.get());
        const AcDbXDataApp* data = line ? line->xDataFor(L"AMS_PRIRUBNICA") : nullptr;
        if (!data || data->values.size() != 2) continue;
        flanges.push_back({std::get<Adesk::Int16>(data->values[0].value), std::get<Adesk::Int16>(data->values[1].value),
                           line->startPoint() + (line->endPoint() - line->startPoint()) * 0.5});
    }
    return flanges;
}

}  // namespace XimoGis::AssemblySchemes::Fittings::Testing
