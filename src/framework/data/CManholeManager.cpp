#include "framework/data/CManholeManager.h"

#include "framework/data/CManholeFrontView.h"
#include "framework/data/CManholeModel.h"
#include "framework/data/CManholeSketch.h"
#include "framework/data/CManholeTopView.h"
#include "framework/manholescheme/CManholeShapeProperties.h"
#include "framework/topology/CNode.h"
#include "framework/utility/CUtility.h"
#include "host/database/AcDbDatabase.h"

namespace XimoGis::Data {

enmManholeDrawResult CManholeManager::DrawFrontView(const Topology::CNode* node,
                                                    const Longitudinal::CLSDrawInterfaceData* drawData,
                                                    AcDbObjectIdArray& ids, const AcGePoint3d& basePoint) {
    return Draw(true, node, drawData, ids, basePoint);
}

enmManholeDrawResult CManholeManager::DrawTopView(const Topology::CNode* node,
                                                  const Longitudinal::CLSDrawInterfaceData* drawData,
                                                  AcDbObjectIdArray& ids, const AcGePoint3d& basePoint) {
    return Draw(false, node, drawData, ids, basePoint);
}

bool CManholeManager::HasManhole(const Topology::CNode* node) { return node && CManholeModel::HasManhole(*node); }

enmManholeDrawResult CManholeManager::Draw(bool front, const Topology::CNode* node,
                                           const Longitudinal::CLSDrawInterfaceData* drawData, AcDbObjectIdArray& ids,
                                           const AcGePoint3d& basePoint) {
    if (!node || !drawData || !acdbHostApplicationServices()->workingDatabase()) return mdrFailed;
    const CPropertiesEx& properties = *drawData->GetProperties();
    const double factor = ManholeScheme::CManholeShapeProperties::GetDrawingFactor(properties);
    if (!(factor > 0.0)) return mdrFailed;
    CManholeModel model;
    if (!CManholeModel::Build(*node, properties, model)) return mdrNoManhole;

    AcDbObjectIdArray drawn;
    CManholeSketch sketch(basePoint, factor, drawn);
    if (front) CManholeFrontView::Draw(model, properties, sketch);
    else CManholeTopView::Draw(model, properties, sketch);
    if (sketch.Failed()) {
        Utility::CUtility::EraseElements(drawn);
        return mdrFailed;
    }
    ids.append(drawn);
    return mdrDrawn;
}

}  // namespace XimoGis::Data
