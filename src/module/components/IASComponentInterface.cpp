#include "module/components/IASComponentInterface.h"

#include "module/definitions/CASComponentData.h"
#include "module/definitions/CASDimensions.h"

#include "framework/config/CModuleConfiguration.h"

#include <boost/make_shared.hpp>

namespace XimoGis::AssemblySchemes {

namespace {

std::wstring Text(const wchar_t* text) { return text ? text : L""; }

}  // namespace

IASComponentInterface::IASComponentInterface(const wchar_t* id, enmASComponentType type, int nameMsg,
                                             int descriptionMsg, const wchar_t* iconId, int allowMultipleInstances,
                                             const wchar_t* parentId)
    : m_type(type),
      m_nameMsg(nameMsg),
      m_descriptionMsg(descriptionMsg),
      m_id(Text(id)),
      m_parentId(Text(parentId)),
      m_allowMultipleInstances(allowMultipleInstances),
      m_iconId(Text(iconId)) {}

boost::shared_ptr<CASComponentData> IASComponentInterface::CreateComponentData() {
    auto component = boost::make_shared<CASComponentData>();
    component->SetType(m_type);
    component->SetDrawData(boost::make_shared<Longitudinal::CLSDrawInterfaceData>(m_id, m_nameMsg, m_descriptionMsg));
    return component;
}

int IASComponentInterface::DrawComponent(CASComponentData* /*component*/, CASInstance* /*instance*/,
                                         AcDbObjectIdArray& /*createdEntities*/) {
    return 0;
}

boost::shared_ptr<CASDimensions> IASComponentInterface::GetComponentDimensions(CASComponentData* /*component*/) {
    return {};
}

std::wstring IASComponentInterface::GetName() const { return CModuleConfiguration::GetMsg(m_nameMsg); }

std::wstring IASComponentInterface::GetDescription() const { return CModuleConfiguration::GetMsg(m_descriptionMsg); }

}  // namespace XimoGis::AssemblySchemes
