#include "host/svg/AcSvgTextDrawer.h"

#include <cmath>
#include <cwctype>

#include "host/entities/TextMetrics.h"
#include "host/svg/AcSvgPath.h"

namespace {
// Cap height as a fraction of the font size for common sans-serif fonts: the host's text height
// is the height of capitals, SVG's font size is the em.
constexpr double kCapHeight = 0.72;
}  // namespace

std::wstring AcSvgTextDrawer::expandControlCodes(const std::wstring& text) {
    std::wstring out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != L'%' || i + 2 >= text.size() || text[i + 1] != L'%') {
            out += text[i];
            continue;
        }
        const wchar_t code = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(text[i + 2])));
        i += 2;
        switch (code) {
            case L'd': out += L'\u00B0'; break;
            case L'c': out += L'\u2300'; break;
            case L'p': out += L'\u00B1'; break;
            case L'%': out += L'%'; break;
            case L'u': case L'o': case L'k': break;
            default:
                if (std::iswdigit(static_cast<wint_t>(code)) && i + 2 < text.size() &&
                    std::iswdigit(static_cast<wint_t>(text[i + 1])) && std::iswdigit(static_cast<wint_t>(text[i + 2]))) {
                    out += static_cast<wchar_t>(std::stoi(text.substr(i, 3)));
                    i += 2;
                } else {
                    out += L"%%";
                    out += text[i];
                }
        }
    }
    return out;
}

std::wstring AcSvgTextDrawer::plainMTextLine(const std::wstring& line) {
    std::wstring out;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const wchar_t c = line[i];
        if (c == L'{' || c == L'}') continue;
        if (c != L'\\' || i + 1 >= line.size()) {
            out += c;
            continue;
        }
        const wchar_t code = line[++i];
        switch (code) {
            case L'\\': case L'{': case L'}': out += code; break;
            case L'~': out += L'\u00A0'; break;
            case L'L': case L'l': case L'O': case L'o': case L'K': case L'k': case L'N': break;
            case L'A': case L'C': case L'c': case L'F': case L'f': case L'H': case L'h': case L'Q': case L'q':
            case L'T': case L't': case L'W': case L'w': case L'p': case L'S': {
                // A code with a value up to ';'; stacked fractions (\S1^2;) show as 1/2.
                const std::size_t semicolon = line.find(L';', i);
                const std::size_t stop = semicolon == std::wstring::npos ? line.size() : semicolon;
                if (code == L'S')
                    for (std::size_t k = i + 1; k < stop; ++k) out += (line[k] == L'^' || line[k] == L'#') ? L'/' : line[k];
                i = stop;
                break;
            }
            default:
                out += c;
                out += code;
        }
    }
    return out;
}

void AcSvgTextDrawer::drawRun(const std::wstring& shown, const Run& run, const AcGeMatrix3d& toPicture,
                              const std::string& color, const AcSvgTextStyle& style, const char* kind) {
    bool blank = true;
    for (wchar_t c : shown) blank = blank && std::iswspace(static_cast<wint_t>(c));
    if (blank || !(run.widthFactor > 0.0)) return;
    // The matrix carries direction, shape and the width factor; sizes are given in picture units
    // so that they keep their precision whatever the scale.
    const double k = AcSvgPath::lengthScale(toPicture);
    if (!(k > 0.0)) return;
    const AcGePoint3d o = toPicture * run.anchor;
    const AcGeVector3d a = (toPicture * run.along) * (run.widthFactor / k);
    const AcGeVector3d d = (toPicture * -run.up) / k;  // SVG glyphs stand on the base line towards -y
    const std::string matrix = "matrix(" + acsvgNumber(a.x) + ' ' + acsvgNumber(a.y) + ' ' + acsvgNumber(d.x) + ' ' +
                               acsvgNumber(d.y) + ' ' + acsvgNumber(o.x) + ' ' + acsvgNumber(o.y) + ')';
    static constexpr const char* kAnchor[] = {"start", "middle", "end"};
    m_out.start("text")
        .attribute("class", kind)
        .attribute("transform", matrix)
        .attribute("font-size", run.height / kCapHeight * k)
        .attribute("font-family", style.fontFamily)
        .attribute("fill", color)
        .attribute("stroke", "none")
        .attribute("xml:space", "preserve");
    if (run.column != 0) m_out.attribute("text-anchor", kAnchor[run.column]);
    // Where the renderer supports it, the glyphs are fitted to the width the host measured.
    const double width = acdbTextWidth(shown, run.height, run.widthFactor);
    if (width > 0.0) m_out.attribute("textLength", width * k / run.widthFactor).attribute("lengthAdjust", "spacingAndGlyphs");
    m_out.text(shown).end();
}

void AcSvgTextDrawer::drawText(const AcDbText& text, const std::wstring& shown, const AcGeMatrix3d& toPicture,
                               const std::string& color, const AcSvgTextStyle& style, const char* kind) {
    const std::wstring expanded = expandControlCodes(shown);
    if (expanded.empty()) return;
    Run run;
    run.height = text.height();
    // A text's own width factor of 1 means "as its style": texts made without one take the style's.
    run.widthFactor = text.widthFactor() != 1.0 ? text.widthFactor() : style.widthFactor;
    const double mirrorX = text.isMirroredInX() ? -1.0 : 1.0;
    const double mirrorY = text.isMirroredInY() ? -1.0 : 1.0;
    const AcGeVector3d u(std::cos(text.rotation()), std::sin(text.rotation()), 0.0);
    run.along = u * mirrorX;
    run.up = AcGeVector3d(-u.y, u.x, 0.0) * mirrorY;

    const AcDb::TextHorzMode horizontal = text.horizontalMode();
    const AcGeVector3d span = text.alignmentPoint() - text.position();
    if ((horizontal == AcDb::kTextAlign || horizontal == AcDb::kTextFit) && span.length() > 1e-9) {
        // Stretched between the two points; aligned text keeps its proportions, fitted text its height.
        const double length = span.length();
        const double natural = acdbTextWidth(expanded, run.height, 1.0);
        if (natural <= 0.0) return;
        if (horizontal == AcDb::kTextAlign) run.height *= length / (natural * run.widthFactor);
        run.widthFactor = length / acdbTextWidth(expanded, run.height, 1.0);
        run.along = span / length * mirrorX;
        run.up = AcGeVector3d(-span.y, span.x, 0.0) / length * mirrorY;
        run.anchor = mirrorX < 0.0 ? text.alignmentPoint() : text.position();
    } else {
        if (horizontal == AcDb::kTextCenter || horizontal == AcDb::kTextMid) run.column = 1;
        if (horizontal == AcDb::kTextRight) run.column = 2;
        double y0 = 0.0;
        switch (text.verticalMode()) {
            case AcDb::kTextVertMid: y0 = -run.height / 2.0; break;
            case AcDb::kTextTop: y0 = -run.height; break;
            case AcDb::kTextBottom: y0 = run.height * 0.2; break;  // the point is below the descenders
            default: break;
        }
        if (horizontal == AcDb::kTextMid) y0 = -run.height / 2.0;
        run.anchor = text.anchorPoint() + run.up * y0;
    }
    drawRun(expanded, run, toPicture, color, style, kind);
}

void AcSvgTextDrawer::drawMText(const AcDbMText& text, const AcGeMatrix3d& toPicture, const std::string& color,
                                const AcSvgTextStyle& style) {
    const auto lines = text.lines();
    Run run;
    run.height = text.textHeight();
    run.widthFactor = style.widthFactor;
    run.column = (text.attachment() - 1) % 3;  // 0 left, 1 centre, 2 right
    const int row = (text.attachment() - 1) / 3;  // 0 top, 1 middle, 2 bottom
    run.along = AcGeVector3d(std::cos(text.rotation()), std::sin(text.rotation()), 0.0);
    run.up = AcGeVector3d(-run.along.y, run.along.x, 0.0);
    const double step = run.height * AcDbMText::kLineSpacing;
    const double total = run.height + step * static_cast<double>(lines.size() - 1);
    const double top = total * row / 2.0;  // the top edge, above the location
    for (std::size_t i = 0; i < lines.size(); ++i) {
        run.anchor = text.location() + run.up * (top - run.height - step * static_cast<double>(i));
        drawRun(expandControlCodes(plainMTextLine(lines[i])), run, toPicture, color, style, "mtext");
    }
}
