#pragma once
// Entity references for text that the module writes into XML by hand.

#include <string>

namespace XimoGis::AssemblySchemes {

class CASXmlEscape {
public:
    // For attribute values: "<", "&", ">", "'" and '"' become entity references, and line breaks
    // and tabs character references, so that a reader gives back the very text (a parser would
    // turn a raw line break into a blank).
    static std::wstring EncodeAttribute(const std::wstring& text);
    // For text stored by the components: "<", ">", "'" and "&" become entity references, except
    // an "&" that already starts one ("&amp;", "&#10;"...), which is left as it is so that text
    // escaped twice does not grow.
    static std::wstring Escape(const std::wstring& text);
    // Whether an entity reference ("&name;", "&#digits;" or "&#xhex;") starts at `position`.
    static bool StartsEntityReference(const std::wstring& text, std::size_t position);
};

}  // namespace XimoGis::AssemblySchemes
