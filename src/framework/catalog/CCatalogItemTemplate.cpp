#include "framework/catalog/CCatalogItemTemplate.h"

#include "framework/catalog/CatalogTags.h"

#include <boost/make_shared.hpp>

namespace XimoGis::Data {

namespace {

enum enmElementCategory { ecElementData = 0, ecBlockFiles = 1 };

void Add(CPropertiesEx& properties, int category, const wchar_t* tag, enmPropertyValueType type,
         const CPropertyValue& initial) {
    auto property = boost::make_shared<CPropertyEx>(tag, type);
    property->SetDefaultAndValue(initial);
    properties.AddProperty(category, property);
}

}  // namespace

CCatalogItemTemplate::CCatalogItemTemplate(std::wstring itemType) : m_itemType(std::move(itemType)) {}

boost::shared_ptr<CCatalogItemTemplate> CCatalogItemTemplate::CreateElementBlock() {
    using namespace CatalogTags;
    using Type = enmPropertyValueType;
    auto result = boost::make_shared<CCatalogItemTemplate>(kElementBlockType);
    CPropertiesEx& p = result->m_properties;
    p.AddCategory(ecElementData, 0, 0);
    const CPropertyValue none;
    const CPropertyValue empty(L"");
    Add(p, ecElementData, kElementName, Type::Text, empty);
    Add(p, ecElementData, kNominalPressure, Type::Double, none);
    Add(p, ecElementData, kNominalDiameter, Type::Double, none);
    Add(p, ecElementData, kMass, Type::Double, none);
    Add(p, ecElementData, kLength, Type::Double, none);
    Add(p, ecElementData, kAngle, Type::Double, none);
    Add(p, ecElementData, kPartType, Type::Integer, none);
    for (const wchar_t* tag : {kCustom1, kCustom2, kCustom3, kCustom4}) Add(p, ecElementData, tag, Type::Text, empty);
    Add(p, ecElementData, kElementType, Type::Text, CPropertyValue(kElementBlockType));
    Add(p, ecElementData, kCatalogNumber, Type::Text, none);
    p.AddCategory(ecBlockFiles, 0, 0);
    for (const wchar_t* tag : kBlockTags) Add(p, ecBlockFiles, tag, Type::Text, none);
    return result;
}

bool CCatalogItemTemplate::operator==(const CCatalogItemTemplate& other) const {
    return m_itemType == other.m_itemType && m_properties == other.m_properties;
}

}  // namespace XimoGis::Data
