#pragma once
// The stored form of a property set, one "ppsEx" element:
//
//   <ppsEx version="1">
//     <category order="0" nameMsg="1098" descriptionMsg="1098">
//       <property tag="LABEL_STYLE" order="1" type="listIndex" editor="1" nameMsg="5160"
//                 descriptionMsg="5160" picture="AS_L_LABEL_STYLE" customControl="" dependency=""
//                 required="1" readOnly="0" visible="1" enabled="1">
//         <value text="Krug"/><hiddenValue text="0"/>
//         <defaultValue text="Krug"/><defaultHiddenValue text="0"/>
//         <choice text="Krug" hiddenValue="0"/><choice text="Pravokutnik" hiddenValue="1"/>
//       </property>
//     </category>
//   </ppsEx>
//
// Categories and properties are written in their order and every attribute is always written, so
// equal sets give equal text. A null value has no element; an empty one has text="". Value types
// are "integer", "long", "double", "text" and "listIndex". Readers take missing optional attributes
// at their defaults (numbers 0, editor 0, texts empty, required and readOnly 0, visible and enabled
// 1) and ignore elements they do not know; a wrong root, version, value type or number, a missing
// tag or order, a repeated tag or category order, or a malformed dependency rule fails the read.

#include "framework/data/CPropertiesEx.h"

#include <pugixml.hpp>

#include <string>

namespace XimoGis::Data {

class CPropertiesExXml {
public:
    static constexpr const char* kRootName = "ppsEx";
    static constexpr int kVersion = 1;

    // Appends the "ppsEx" element of `properties` to `parent`.
    static void Write(const CPropertiesEx& properties, pugi::xml_node parent);
    // Fills `properties`, which must be empty, from a "ppsEx" element; false with the reason in
    // `error` on a fault (the set is then partly filled and should be dropped).
    static bool Read(const pugi::xml_node& root, CPropertiesEx& properties, std::wstring* error);
};

}  // namespace XimoGis::Data
