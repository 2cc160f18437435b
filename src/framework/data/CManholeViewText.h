#pragma once
// Texts shared by the manhole views: the title, pipe labels and levels, and the text settings
// read from the shape properties.

#include "framework/data/CManholeModel.h"

#include <string>

namespace XimoGis::Data {

struct CManholeViewText {
    double height = 2.5;  // drawing units
    int colour = 7;
    std::wstring style = L"Standard";

    static CManholeViewText FromProperties(const CPropertiesEx& properties);
    // "<view name> '<node name>'", the view name being message `viewMessage`.
    static std::wstring Title(int viewMessage, const std::wstring& nodeName);
    // "<section name> DN<millimetres>", or "DN<millimetres>" for a section without a name.
    static std::wstring PipeLabel(const CManholePipe& pipe);
    // A level with its sign and two decimals: "+121.40", "-1.80".
    static std::wstring Level(double level);
};

}  // namespace XimoGis::Data
