#include "framework/data/CManholeViewText.h"

#include "framework/config/CModuleConfiguration.h"

#include <cmath>
#include <cwchar>

namespace XimoGis::Data {

CManholeViewText CManholeViewText::FromProperties(const CPropertiesEx& properties) {
    CManholeViewText text;
    text.height = properties.GetDblProperty(L"MSMS_TEXT_HEIGHT", 2.5, 1);
    text.colour = properties.GetIntProperty(L"MSMS_TEXT_COLOR", 7, 1);
    text.style = properties.GetStrProperty(L"MSMS_TEXT_STYLE", L"Standard", 1);
    return text;
}

std::wstring CManholeViewText::Title(int viewMessage, const std::wstring& nodeName) {
    return CModuleConfiguration::GetMsg(viewMessage) + L" '" + nodeName + L"'";
}

std::wstring CManholeViewText::PipeLabel(const CManholePipe& pipe) {
    const std::wstring dn = L"DN" + std::to_wstring(std::lround(pipe.diameter * 1000.0));
    return pipe.name.empty() ? dn : pipe.name + L" " + dn;
}

std::wstring CManholeViewText::Level(double level) {
    wchar_t text[32];
    std::swprintf(text, 32, L"%+.2f", std::fabs(level) < 0.005 ? 0.0 : level);
    return text;
}

}  // namespace XimoGis::Data
