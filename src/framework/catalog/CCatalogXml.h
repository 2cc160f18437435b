#pragma once
// A catalog as a UTF-8 XML text file, for shipping catalogs with the sources and for moving them
// between workspaces:
//
//   <catalog name="ASSEMBLYSCHEMES_CATALOG" version="1">
//     <template itemType="ELEMENT_BLOCK01"><ppsEx version="1">...</ppsEx></template>
//     <group id="{...}" name="Tees">
//       <item id="{...}" name="T 100x100" type="ELEMENT_BLOCK01">
//         <property tag="AS_NOMINALDIAMETER" value="100"/>
//         <property tag="AS_CATALOGNUM" value="T 100/100" hidden="LJ-T-100-100-16"/>
//       </item>
//     </group>
//   </catalog>
//
// Templates are optional: a catalog read from text starts with the framework's standard templates
// and a <template> adds or replaces the one of its item type. Groups and items nest in their
// order; a group has an optional "type" (default empty), an item's "type" defaults to
// "ELEMENT_BLOCK01". A missing "id" gets a new GUID. An item starts with the properties of its
// type's template; each <property> sets the shown value ("value"; absent means null) and the
// hidden value ("hidden"; absent means whatever setting the shown value gives it, and
// hiddenIsNull="1" means null). An item whose properties do not fit its template carries its
// whole property set as a <ppsEx> element instead.
//
// The writer uses the smallest form that reads back equal: templates always, and for each item
// only the properties whose values differ from its template's defaults.

#include "framework/catalog/CCatalog.h"

#include <boost/shared_ptr.hpp>

#include <string>

namespace XimoGis::Data {

class CCatalogXml {
public:
    // An empty pointer on any fault, with `error` naming the file, the line and what is wrong.
    static boost::shared_ptr<CCatalog> Read(const std::wstring& file, std::wstring& error);
    // Replaces the file as a whole (see CAtomicFile); the old file stays as it was on failure.
    static bool Write(const CCatalog& catalog, const std::wstring& file, std::wstring& error);
    // The text that Write puts into the file.
    static std::string ToText(const CCatalog& catalog);
};

}  // namespace XimoGis::Data
