#pragma once
// The draw-interface record of a component: which component it is (id string), its name and
// description message ids, whether a definition must hold it, and its own property set.
//
// Stored form, one "drawInterface" element that always holds the "ppsEx" element of its set:
//   <drawInterface id="00FRAME" nameMsg="1505" descriptionMsg="1505" mandatory="1"
//                  targetLocation="0" header="0"><ppsEx version="1">...</ppsEx></drawInterface>
// Readers take missing numbers as 0 and a missing "ppsEx" as an empty set.

#include "framework/data/CPropertiesEx.h"

#include <boost/shared_ptr.hpp>
#include <pugixml.hpp>

#include <string>

namespace XimoGis::Longitudinal {

class CLSDrawInterfaceData {
public:
    CLSDrawInterfaceData();
    CLSDrawInterfaceData(std::wstring id, int nameMsg, int descriptionMsg);
    // A member-wise copy would share the property set; MakeDeepCopy is the copy.
    CLSDrawInterfaceData(const CLSDrawInterfaceData&) = delete;
    CLSDrawInterfaceData& operator=(const CLSDrawInterfaceData&) = delete;

    const std::wstring& GetId() const { return m_id; }
    void SetId(const std::wstring& id) { m_id = id; }
    int GetNameMsg() const { return m_nameMsg; }
    void SetNameMsg(int msg) { m_nameMsg = msg; }
    int GetDescriptionMsg() const { return m_descriptionMsg; }
    void SetDescriptionMsg(int msg) { m_descriptionMsg = msg; }
    // Whether a definition must hold this component.
    bool IsMandatory() const { return m_mandatory; }
    void SetMandatory(bool mandatory) { m_mandatory = mandatory; }
    // Where on a host document the component goes; 0 for a scheme sheet.
    int GetTargetLocation() const { return m_targetLocation; }
    void SetTargetLocation(int location) { m_targetLocation = location; }
    // Whether the component is a header component of its document.
    bool IsHeader() const { return m_header; }
    void SetHeader(bool header) { m_header = header; }

    // Never null: a record starts with an empty set, and setting null installs an empty one.
    const boost::shared_ptr<Data::CPropertiesEx>& GetProperties() const { return m_properties; }
    void SetProperties(const boost::shared_ptr<Data::CPropertiesEx>& properties);

    // Gives the target this record's fields and a new property set deep-copied from this one's.
    void MakeDeepCopy(CLSDrawInterfaceData& target) const;

    std::wstring GetXML() const;
    void WriteXmlNode(pugi::xml_node parent) const;
    // Reads a document whose root is "drawInterface". On any fault (including a faulty "ppsEx")
    // returns false, leaves the record as it was and, when `error` is given, says what is wrong.
    bool ParseXML(const wchar_t* xml, std::wstring* error = nullptr);
    bool ReadXmlNode(const pugi::xml_node& node, std::wstring* error = nullptr);

    // Compares the fields and the property sets by value.
    bool operator==(const CLSDrawInterfaceData& other) const;

private:
    std::wstring m_id;
    int m_nameMsg = 0;
    int m_descriptionMsg = 0;
    bool m_mandatory = false;
    int m_targetLocation = 0;
    bool m_header = false;
    boost::shared_ptr<Data::CPropertiesEx> m_properties;
};

}  // namespace XimoGis::Longitudinal
