#pragma once
// Draws single-line and multi-line texts. Each line of text is an SVG text element placed by a
// matrix from the text's own frame (along the base line, and down) to the picture, so rotation,
// mirroring, block transforms and the picture's downward Y all meet in one place and the glyphs
// read upright unless the text is meant to be mirrored. Alignment is the SVG text anchor, so it
// holds whatever font the viewer has; where the viewer supports it the glyphs are also fitted to
// the width the host measures, so that what the drawing laid out is what the picture shows.

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
    // One line of text placed in the entity's coordinates.
    struct Run {
        AcGePoint3d anchor;  // on the base line, at the start, middle or end by column
        AcGeVector3d along;  // unit vector along the text as the glyphs advance
        AcGeVector3d up;     // unit vector from the base line up the glyphs
        double height = 0.0;  // cap height
        double widthFactor = 1.0;
        int column = 0;  // 0 start, 1 middle, 2 end
    };
    void drawRun(const std::wstring& shown, const Run& run, const AcGeMatrix3d& toPicture, const std::string& color,
                 const AcSvgTextStyle& style, const char* kind);

    AcSvgWriter& m_out;
};
