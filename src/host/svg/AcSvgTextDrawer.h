#pragma once
// Draws single-line and multi-line texts. Each line of text is an SVG text element placed by a
// matrix from the text's own frame (along the base line, and down) to the picture, so rotation,
// mirroring, block transforms and the picture's downward Y all meet in one place and the glyphs
// read upright unless the text is meant to be mirrored. Each line is stretched to the width the
// host measures for it, so what the drawing laid out is what the picture shows.

#include <string>

#include "host/entities/AcDbMText.h"
#include "host/entities/AcDbText.h"
#include "host/svg/AcSvgProperties.h"
#include "host/svg/AcSvgWriter.h"

class AcSvgTextDrawer {
public:
    explicit AcSvgTextDrawer(AcSvgWriter& out) : m_out(out) {}

    // kind names the element's class ("text", "attribute", "attdef"); shown is the string drawn.
    void drawText(const AcDbText& text, const std::wstring& shown, const AcGeMatrix3d& toPicture,
                  const std::string& color, const AcSvgTextStyle& style, const char* kind);
    void drawMText(const AcDbMText& text, const AcGeMatrix3d& toPicture, const std::string& color,
                   const AcSvgTextStyle& style);

    // The host's control codes: %%d degree, %%c diameter, %%p plus-minus, %%% percent; %%u and %%o
    // (under- and overline switches) are left out.
    static std::wstring expandControlCodes(const std::wstring& text);
    // A paragraph of multi-line text without its formatting codes ("{\fArial;x}" -> "x").
    static std::wstring plainMTextLine(const std::wstring& line);

private:
    // One line of text: its left end on the base line, unit vectors along the text and up (in the
    // entity's coordinates), cap height and width.
    void drawRun(const std::wstring& shown, const AcGePoint3d& origin, const AcGeVector3d& along,
                 const AcGeVector3d& up, double height, double width, const AcGeMatrix3d& toPicture,
                 const std::string& color, const AcSvgTextStyle& style, const char* kind);

    AcSvgWriter& m_out;
};
