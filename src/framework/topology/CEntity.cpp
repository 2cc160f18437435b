#include "framework/topology/CEntity.h"

#include "framework/utility/CUtility.h"
#include "framework/data/CXmlText.h"

#include <cwchar>

namespace XimoGis::Topology {

CEntity::CEntity(enmEntityType type) : m_guid(Utility::CUtility::CreateGUID()), m_entityType(type) {}

std::wstring CEntity::GetHandle() {
    const AcDbObjectId holder = GetEntityHolder();
    if (holder.isNull()) return {};
    wchar_t text[16];
    std::swprintf(text, 16, L"%X", static_cast<unsigned>(holder.handle()));
    return text;
}

std::wstring CEntity::GetXML() {
    pugi::xml_document document;
    pugi::xml_node entity = document.append_child("entity");
    Data::CXmlText::SetAttribute(entity, "guid", m_guid);
    Data::CXmlText::SetAttribute(entity, "type", static_cast<long>(m_entityType));
    return Data::CXmlText::ToText(entity);
}

std::unique_ptr<geos::geom::Geometry> CEntity::GetGeosGeometry() { return nullptr; }

int CEntity::Mark(int, void*) { return 0; }

int CEntity::MoveTo(const AcGePoint3d&) { return 0; }

int CEntity::DrawCheckMark() { return 0; }

int CEntity::WriteDataAsEED() const { return 0; }

int CEntity::GetExtents(AcDbExtents&) { return 0; }

}  // namespace XimoGis::Topology
