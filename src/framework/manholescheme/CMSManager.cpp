#include "framework/manholescheme/CMSManager.h"

#include "framework/manholescheme/CManholeShapeProperties.h"

#include <boost/make_shared.hpp>

namespace XimoGis::ManholeScheme {

using Longitudinal::CLSDrawInterfaceData;

CMSManager::CMSManager() {
    // Name messages: 9944 "Manhole side view", 9943 "Manhole top view".
    for (const bool front : {true, false}) {
        auto component = boost::make_shared<CLSDrawInterfaceData>(front ? kFrontViewId : kTopViewId,
                                                                  front ? 9944 : 9943, front ? 9944 : 9943);
        component->SetProperties(CManholeShapeProperties::Create(front));
        m_components[component->GetId()] = component;
    }
}

CMSManager* CMSManager::Instance() {
    static CMSManager manager;
    return &manager;
}

boost::shared_ptr<CLSDrawInterfaceData> CMSManager::GetComponentById(const std::wstring& id) const {
    const auto found = m_components.find(id);
    if (found == m_components.end()) return {};
    auto copy = boost::make_shared<CLSDrawInterfaceData>();
    found->second->MakeDeepCopy(*copy);
    return copy;
}

std::vector<std::wstring> CMSManager::GetComponentIds() const {
    std::vector<std::wstring> ids;
    for (const auto& entry : m_components) ids.push_back(entry.first);
    return ids;
}

}  // namespace XimoGis::ManholeScheme
