#pragma once
// Writes well-formed XML for SVG: elements opened and closed in order, attribute values and text
// escaped, numbers in a fixed short form that does not depend on the locale.

#include <string>
#include <string_view>
#include <vector>

class AcSvgWriter {
public:
    AcSvgWriter();

    // Opens an element; attributes follow until content or the end of the element.
    AcSvgWriter& start(const char* name);
    AcSvgWriter& attribute(const char* name, std::string_view value);
    AcSvgWriter& attribute(const char* name, double value);
    AcSvgWriter& text(std::wstring_view content);
    // Ends the innermost open element ("/>" when it has no content).
    AcSvgWriter& end();
    // Ends every open element and gives the document.
    std::string finish();

private:
    void closeStartTag();

    std::string m_out;
    std::vector<std::string> m_open;
    bool m_inStartTag = false;
};

// A number with at most three decimals and no trailing zeros ("12.5", "-3", "0.125").
std::string acsvgNumber(double value);
// UTF-8 with the XML specials escaped; characters XML cannot hold are left out.
std::string acsvgEscape(std::wstring_view text);
