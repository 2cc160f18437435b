#pragma once
// One component placed on a scheme definition: its type, its offset on the sheet, its internal
// id within the definition, the internal id of its parent component, and its draw-interface
// record (component type id string, name and description messages, its own property set).
//
// Stored form, written with no line breaks (note the blank before ">"; offsets keep 0.001):
//   <asComData type="1" offx="12.346" offy="-0.500" intId="{...}" prntId="" ><drawInterface .../></asComData>

#include "module/components/enmASComponentType.h"

#include "framework/longitudinal/CLSDrawInterfaceData.h"

#include <boost/shared_ptr.hpp>

#include <ostream>
#include <string>

namespace XimoGis::AssemblySchemes {

class CASComponentData {
public:
    CASComponentData() = default;
    // Copies every field; the draw-data record is shared with the source.
    CASComponentData(const CASComponentData&) = default;
    CASComponentData& operator=(const CASComponentData&) = default;
    virtual ~CASComponentData() = default;

    // The draw data's name; a text component adds the name of the node data it shows.
    virtual std::wstring GetName();

    enmASComponentType GetType() const { return m_type; }
    void SetType(enmASComponentType type) { m_type = type; }
    double GetXOffset() const { return m_offx; }
    void SetXOffset(double offset) { m_offx = offset; }
    double GetYOffset() const { return m_offy; }
    void SetYOffset(double offset) { m_offy = offset; }
    const std::wstring& GetInternalId() const { return m_intId; }
    void SetInternalId(const std::wstring& id) { m_intId = id; }
    const std::wstring& GetParentComponentId() const { return m_prntId; }
    void SetParentComponentId(const std::wstring& id) { m_prntId = id; }

    // Never empty: a component without draw data gets a new, empty record on the first call.
    const boost::shared_ptr<Longitudinal::CLSDrawInterfaceData>& GetDrawData();
    void SetDrawData(const boost::shared_ptr<Longitudinal::CLSDrawInterfaceData>& drawData) { m_drawData = drawData; }
    // Whether a draw-data record is held, without creating one.
    bool HasDrawData() const { return static_cast<bool>(m_drawData); }

    // The component type id string ("00FRAME"...) and the description message text of the draw data.
    std::wstring GetId();
    std::wstring GetDescription();
    void SetNameMsg(int msg);
    void SetDescriptionMsg(int msg);

    // Gives the target this component's type and offsets, a new GUID as internal id, the same
    // parent id (so copied children still name the source's parents) and a deep copy of the draw data.
    void MakeDeepCopy(CASComponentData& target);

    void GetXML(std::wostream& out) const;
    std::wstring GetXML() const;
    // Reads an "asComData" element leniently: missing numbers read 0, missing ids read empty and
    // a "drawInterface" that does not read leaves the draw data as it was. Returns 0 only when the
    // text has no "asComData" element.
    int ParseXML(const wchar_t* xml);

private:
    enmASComponentType m_type = eASComponentNone;
    double m_offx = 0.0;
    double m_offy = 0.0;
    std::wstring m_intId;
    std::wstring m_prntId;
    boost::shared_ptr<Longitudinal::CLSDrawInterfaceData> m_drawData;
};

}  // namespace XimoGis::AssemblySchemes
