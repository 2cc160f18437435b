#pragma once
// Escaping of text stored inside XML by the module's components: "<", ">", "'" and "&" become
// entity references, except an "&" that already starts one ("&amp;", "&#10;"...), which is left
// as it is so that text escaped twice does not grow.

#include <string>

namespace XimoGis::AssemblySchemes {

class CASXmlEscape {
public:
    static std::wstring Escape(const std::wstring& text);
    // Whether an entity reference ("&name;", "&#digits;" or "&#xhex;") starts at `position`.
    static bool StartsEntityReference(const std::wstring& text, std::size_t position);
};

}  // namespace XimoGis::AssemblySchemes
