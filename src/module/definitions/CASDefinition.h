#pragma once
// A scheme definition: the template from which a sheet is drawn. A named repository item holding
// the components placed on the sheet (keyed and ordered by internal id), the drawing scale and the
// sheet's property set (paper size and paper frame).
//
// Stored form, written with no line breaks; components in ascending internal-id order:
//   <asDefinition id="{...}" name="A4 portrait" entType="0" topologyType="8"
//                 topologyFunction="50001" readOnly="0" hidden="0" scale="0.1;0.1;0">
//     <cmps><asComData .../>...</cmps><ppsEx version="1">...</ppsEx></asDefinition>
// The name and the scale text are attribute-encoded, the id is written as it stands. Reading is
// lenient (see ParseXML), and the "LS_SCALE_X" property, not the "scale" attribute, decides the
// scale of a loaded definition.

#include "module/definitions/CASComponentData.h"

#include "framework/data/CPropertiesEx.h"
#include "framework/longitudinal/CLSScale.h"
#include "framework/repository/CRepositoryItem.h"

#include <boost/shared_ptr.hpp>

#include <map>
#include <ostream>
#include <string>

namespace XimoGis::AssemblySchemes {

class CASDefinition : public CRepositoryItem {
public:
    // Ordered by ordinal, case-sensitive comparison of the internal ids.
    using Components = std::map<std::wstring, boost::shared_ptr<CASComponentData>>;

    // No components, scale 0.1/0.1 in unit 0 and the default sheet properties.
    CASDefinition();
    // Copies the item fields, the scale and the properties of `source`; the components are shared
    // with it. A null source gives a default definition.
    explicit CASDefinition(const CASDefinition* source);
    CASDefinition(const CASDefinition&) = delete;
    CASDefinition& operator=(const CASDefinition&) = delete;
    ~CASDefinition() override = default;

    void GetXML(std::wostream& out) const override;
    std::wstring GetXML() const override;
    std::wstring GetWsDescription() const override { return {}; }
    // Non-zero when one of the component types says that its component refers to `item`.
    int DependsOn(const wchar_t* name, CRepositoryItem* item) override;
    void RefreshTemporaryDataReferences() override {}

    // Reads an "asDefinition" element: missing or non-numeric numbers read 0, components that do
    // not read are dropped, a missing "ppsEx" leaves an empty property set, and the scale becomes
    // "LS_SCALE_X" (1.0 when absent) in both directions. Returns 0, changing nothing, when the
    // text has no "asDefinition" element.
    int ParseXML(const wchar_t* xml);

    // Gives the target this definition's item fields, a copy of the scale, a deep copy of the
    // property set and this definition's components. The component records are shared: a change
    // to a component shows in both definitions.
    void MakeDeepCopy(CASDefinition& target) const;

    // Gives a component with an empty internal id a new GUID, then stores it under its internal
    // id. A component whose id is taken is not added; the one already there stays.
    void AddComponent(const boost::shared_ptr<CASComponentData>& component);
    void RemoveComponent(const wchar_t* internalId);
    boost::shared_ptr<CASComponentData> GetComponentByInternalId(const wchar_t* internalId) const;
    Components& GetComponents() { return m_components; }
    const Components& GetComponents() const { return m_components; }

    const boost::shared_ptr<Data::CPropertiesEx>& GetProperties() const { return m_properties; }
    const boost::shared_ptr<Longitudinal::CLSScale>& GetScale() const { return m_scale; }

    // The property set's reads; the default when the definition has no property set.
    double GetDblProperty(const std::wstring& tag, double defaultValue, int flag) const;
    int GetIntProperty(const std::wstring& tag, int defaultValue, int flag) const;
    long GetLngProperty(const std::wstring& tag, long defaultValue, int flag) const;
    std::wstring GetStrProperty(const std::wstring& tag, const std::wstring& defaultValue, int flag) const;
    // "ASPW" and "ASPH" with A4 portrait, 210 x 297, when absent.
    double GetPaperWidth() const;
    double GetPaperHeight() const;

    // The sheet property set of a new definition: one category (4712) with the drawing scale
    // (taken from this definition's scale), paper width and height, the paper frame switch, its
    // colour and its linetype.
    boost::shared_ptr<Data::CPropertiesEx> CreateDefaultProperties() const;

private:
    Components m_components;
    boost::shared_ptr<Data::CPropertiesEx> m_properties;
    boost::shared_ptr<Longitudinal::CLSScale> m_scale;
};

}  // namespace XimoGis::AssemblySchemes
