#pragma once
// The rectangle bookkeeping used while a sheet is laid out: one rectangle per component, with the
// rectangles of its sub-components nested under their internal ids. Width and height are stored
// values, not computed from the corners, so a component may reserve more than it covers.

#include "host/geometry/AcGePoint3d.h"
#include "host/geometry/AcGeVector3d.h"

#include <boost/shared_ptr.hpp>

#include <map>
#include <string>

namespace XimoGis::AssemblySchemes {

class CASDimensions {
public:
    using SubDimensions = std::map<std::wstring, boost::shared_ptr<CASDimensions>>;

    CASDimensions() = default;
    // A rectangle of that size with both corners at the origin and no internal id.
    CASDimensions(double width, double height);
    // Copies the fields; the sub-rectangles are shared with the source.
    CASDimensions(const CASDimensions&) = default;
    CASDimensions& operator=(const CASDimensions&) = default;

    const std::wstring& GetInternalId() const { return m_internalId; }
    void SetInternalId(const std::wstring& id) { m_internalId = id; }
    double GetWidth() const { return m_width; }
    void SetWidth(double width) { m_width = width; }
    double GetHeight() const { return m_height; }
    void SetHeight(double height) { m_height = height; }
    const AcGePoint3d& GetBottomLeft() const { return m_bottomLeft; }
    void SetBottomLeft(const AcGePoint3d& point) { m_bottomLeft = point; }
    const AcGePoint3d& GetUpperRight() const { return m_upperRight; }
    void SetUpperRight(const AcGePoint3d& point) { m_upperRight = point; }

    // Stores the sub-rectangle under its internal id; a null pointer is ignored.
    void AddSubComponentDimensions(const boost::shared_ptr<CASDimensions>& dimensions);
    // Looks among the direct sub-rectangles only; empty when absent.
    boost::shared_ptr<CASDimensions> GetDimensionsByInternalId(const wchar_t* internalId) const;
    const SubDimensions& GetSubDimensions() const { return m_subDimensions; }

    // Moves both corners and, recursively, every sub-rectangle; sizes stay as they are.
    void TranslateDimension(const AcGeVector3d& offset);

private:
    std::wstring m_internalId;
    SubDimensions m_subDimensions;
    double m_width = 0.0;
    double m_height = 0.0;
    AcGePoint3d m_bottomLeft;
    AcGePoint3d m_upperRight;
};

}  // namespace XimoGis::AssemblySchemes
