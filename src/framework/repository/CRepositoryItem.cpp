#include "framework/repository/CRepositoryItem.h"

#include <sstream>

namespace XimoGis {

void CRepositoryItem::GetXML(std::wostream& out) const {
    out << L"<repositoryItem id=\"" << EncodeAttribute(m_id) << L"\" name=\"" << EncodeAttribute(m_name)
        << L"\" entType=\"" << m_entType << L"\" topologyType=\"" << m_topologyType << L"\" topologyFunction=\""
        << m_topologyFunction << L"\" readOnly=\"" << m_readOnly << L"\" hidden=\"" << m_hidden << L"\"/>";
}

std::wstring CRepositoryItem::GetXML() const {
    std::wostringstream out;
    GetXML(out);
    return out.str();
}

std::wstring CRepositoryItem::EncodeAttribute(const std::wstring& text) {
    std::wstring encoded;
    encoded.reserve(text.size());
    for (wchar_t c : text) {
        switch (c) {
            case L'<': encoded += L"&lt;"; break;
            case L'&': encoded += L"&amp;"; break;
            case L'>': encoded += L"&gt;"; break;
            case L'\'': encoded += L"&apos;"; break;
            case L'"': encoded += L"&quot;"; break;
            // Line breaks and tabs would come back as blanks from a parser if written as they are.
            case L'\n': encoded += L"&#10;"; break;
            case L'\r': encoded += L"&#13;"; break;
            case L'\t': encoded += L"&#9;"; break;
            default: encoded += c;
        }
    }
    return encoded;
}

}  // namespace XimoGis
