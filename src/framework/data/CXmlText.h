#pragma once
// The bridge between wide text and pugixml documents (UTF-8 inside), shared by the readers and
// writers of stored framework objects. Attributes that must be numbers are checked, and every
// failure is described in words that name the element and attribute.

#include <pugixml.hpp>

#include <string>

namespace XimoGis::Data {

class CXmlText {
public:
    // The node as compact XML text: no declaration, no indentation, no line breaks.
    static std::wstring ToText(const pugi::xml_node& node);
    // Parses `text` into `document`; false with the parser's reason in `error` for text that is not
    // well-formed XML (or a null pointer).
    static bool Load(const wchar_t* text, pugi::xml_document& document, std::wstring* error);

    static void SetAttribute(pugi::xml_node node, const char* name, const std::wstring& value);
    static void SetAttribute(pugi::xml_node node, const char* name, long value);
    // Written as 0 or 1; a separate name because a text literal would convert to bool first.
    static void SetFlag(pugi::xml_node node, const char* name, bool value) { SetAttribute(node, name, value ? 1L : 0L); }
    static std::wstring GetAttribute(const pugi::xml_node& node, const char* name);

    // A missing attribute gives `fallback`; one that is present must be an integer (flags 0 or 1),
    // otherwise the read fails with a description in `error`.
    static bool ReadInt(const pugi::xml_node& node, const char* name, int fallback, int& value, std::wstring* error);
    static bool ReadFlag(const pugi::xml_node& node, const char* name, bool fallback, bool& value,
                         std::wstring* error);
    // Sets `error` (when given) and returns false, for one-line failure returns.
    static bool Fail(std::wstring* error, const std::wstring& message);
};

}  // namespace XimoGis::Data
