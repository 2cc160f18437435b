#pragma once
// The module's XML reader: a cursor that moves through a document level by level. It finds an
// element by name among the siblings after the current one, goes into an element and out again,
// reads attributes and hands out an element with its content as a sub-document. Readers built on
// it are lenient by design: a missing attribute reads as empty text or 0.

#include <pugixml.hpp>

#include <string>

namespace XimoGis::AssemblySchemes {

class CASXmlCursor {
public:
    CASXmlCursor() = default;
    CASXmlCursor(const CASXmlCursor&) = delete;
    CASXmlCursor& operator=(const CASXmlCursor&) = delete;

    // Parses `text` and puts the cursor before the root element. False (and an empty document)
    // for a null pointer or text that is not well-formed XML.
    bool SetDoc(const wchar_t* text);

    // Moves to the next element named `name` after the current position on the current level;
    // false (the position unchanged) when there is none.
    bool FindElem(const wchar_t* name);
    // The current element becomes the level searched next, from its first child on; false when
    // there is no current element.
    bool IntoElem();
    // Back to the level above; the element that was gone into is current again.
    bool OutOfElem();

    // Attribute text of the current element with entity references decoded; empty when missing.
    std::wstring GetAttrib(const char* name) const;
    // Decimal conversions that take the leading number of the text and give 0 for a missing
    // attribute or text that does not start with a number.
    int GetIntAttrib(const char* name) const;
    double GetDblAttrib(const char* name) const;
    // The current element with its content, as compact XML text; empty when there is none.
    std::wstring GetSubDoc() const;

private:
    pugi::xml_document m_document;
    pugi::xml_node m_level;  // the element whose children are searched (the document at the top)
    pugi::xml_node m_current;  // null before the first match on a level
};

}  // namespace XimoGis::AssemblySchemes
