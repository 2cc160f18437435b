#pragma once
// Text width without a font renderer. The host measures text with its fonts; here each character
// advances by a fixed fraction of the height, close to the shapes of a plain sans-serif font
// (narrow: i l . , ; about 0.3; wide: m w M W about 0.9; most others 0.55 to 0.72). Good to a few
// percent for the short labels of a sheet, which is what layout needs.

#include <string_view>

double acdbCharAdvance(wchar_t c);
// Width of one line of text at this height and width factor.
double acdbTextWidth(std::wstring_view text, double height, double widthFactor = 1.0);
