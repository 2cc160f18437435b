#pragma once
// The manhole scheme components: draw-interface records that describe how a manhole is drawn.
// "MSC_MANHOLESHAPE_FRONT" is the side view (a vertical section through the shaft),
// "MSC_MANHOLESHAPE" the top view; both carry the property set of CManholeShapeProperties.
// Data::CManholeManager draws the views with them.

#include "framework/longitudinal/CLSDrawInterfaceData.h"

#include <boost/shared_ptr.hpp>

#include <map>
#include <string>
#include <vector>

namespace XimoGis::ManholeScheme {

class CMSManager {
public:
    static constexpr const wchar_t* kFrontViewId = L"MSC_MANHOLESHAPE_FRONT";
    static constexpr const wchar_t* kTopViewId = L"MSC_MANHOLESHAPE";

    static CMSManager* Instance();

    // A new copy of the component's record, which the caller may change freely; empty for an
    // id that is not a component (ids compare exactly).
    boost::shared_ptr<Longitudinal::CLSDrawInterfaceData> GetComponentById(const std::wstring& id) const;
    std::vector<std::wstring> GetComponentIds() const;

    CMSManager(const CMSManager&) = delete;
    CMSManager& operator=(const CMSManager&) = delete;

private:
    CMSManager();

    std::map<std::wstring, boost::shared_ptr<Longitudinal::CLSDrawInterfaceData>> m_components;
};

}  // namespace XimoGis::ManholeScheme
