#pragma once
// Draws the side and top views of a node's manhole (see CManholeFrontView, CManholeTopView) into
// model space of the working database, with the shape properties of a manhole scheme component
// (ManholeScheme::CMSManager): lengths in metres times "MSMS_SCALE", in the unit "MSMS_UNIT".

#include "framework/longitudinal/CLSDrawInterfaceData.h"
#include "host/base/AcArray.h"
#include "host/database/AcDbObjectId.h"
#include "host/geometry/AcGePoint3d.h"

namespace XimoGis::Topology {
class CNode;
}

namespace XimoGis::Data {

enum enmManholeDrawResult {
    mdrFailed = -1,    // no node, no draw data, no drawing, a scale that is not positive, or an entity refused
    mdrNoManhole = 0,  // the node has no manhole data: nothing is drawn
    mdrDrawn = 1,
};

class CManholeManager {
public:
    // The new entities' ids are appended to `ids`; on failure nothing stays drawn.
    static enmManholeDrawResult DrawFrontView(const Topology::CNode* node,
                                              const Longitudinal::CLSDrawInterfaceData* drawData, AcDbObjectIdArray& ids,
                                              const AcGePoint3d& basePoint = AcGePoint3d::kOrigin);
    static enmManholeDrawResult DrawTopView(const Topology::CNode* node,
                                            const Longitudinal::CLSDrawInterfaceData* drawData, AcDbObjectIdArray& ids,
                                            const AcGePoint3d& basePoint = AcGePoint3d::kOrigin);
    static bool HasManhole(const Topology::CNode* node);

private:
    static enmManholeDrawResult Draw(bool front, const Topology::CNode* node,
                                     const Longitudinal::CLSDrawInterfaceData* drawData, AcDbObjectIdArray& ids,
                                     const AcGePoint3d& basePoint);
};

}  // namespace XimoGis::Data
