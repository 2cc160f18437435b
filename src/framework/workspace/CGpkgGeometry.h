#pragma once
// GeoPackage geometry blobs of the network layers: the standard GeoPackage header ("GP", version
// 0, flags, spatial reference id, envelope) followed by the geometry as well-known binary.
//
// Written: little-endian, XY only; a line string carries its envelope [minx, maxx, miny, maxy],
// a point none (its envelope is the point itself). Read: points and line strings with or without
// Z and M (ISO codes 1001.., 2001.., 3001..), either byte order, any envelope kind.

#include "host/geometry/AcGePoint3d.h"

#include <string>
#include <vector>

namespace XimoGis::Workspace {

class CGpkgGeometry {
public:
    enum enmGeometryType { gtUnknown = 0, gtPoint = 1, gtLineString = 2 };

    static std::string EncodePoint(const AcGePoint3d& point, int srsId);
    // Needs two points or more; an empty result otherwise.
    static std::string EncodeLineString(const std::vector<AcGePoint3d>& points, int srsId);

    // Reads a blob; false, with `error` telling what is wrong, for anything but a non-empty point
    // or line string. Z is kept when present, 0 otherwise; M is skipped.
    static bool Decode(const std::string& blob, enmGeometryType& type, std::vector<AcGePoint3d>& points, int& srsId,
                       std::string& error);
};

}  // namespace XimoGis::Workspace
