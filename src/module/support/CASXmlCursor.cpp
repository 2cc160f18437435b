#include "module/support/CASXmlCursor.h"

#include "framework/data/CXmlText.h"
#include "host/base/AcString.h"

#include <climits>
#include <cwchar>

namespace XimoGis::AssemblySchemes {

bool CASXmlCursor::SetDoc(const wchar_t* text) {
    m_document.reset();
    m_level = m_document;
    m_current = pugi::xml_node();
    if (!text) return false;
    if (!m_document.load_string(acutWcharToUtf8(text).c_str())) {
        m_document.reset();
        return false;
    }
    return true;
}

bool CASXmlCursor::FindElem(const wchar_t* name) {
    if (!name || !m_level) return false;
    const std::string wanted = acutWcharToUtf8(name);
    pugi::xml_node node = m_current ? m_current.next_sibling() : m_level.first_child();
    for (; node; node = node.next_sibling()) {
        if (node.type() == pugi::node_element && wanted == node.name()) {
            m_current = node;
            return true;
        }
    }
    return false;
}

bool CASXmlCursor::IntoElem() {
    if (!m_current) return false;
    m_level = m_current;
    m_current = pugi::xml_node();
    return true;
}

bool CASXmlCursor::OutOfElem() {
    if (!m_level || m_level == m_document) return false;
    m_current = m_level;
    m_level = m_level.parent();
    return true;
}

std::wstring CASXmlCursor::GetAttrib(const char* name) const {
    if (!m_current) return {};
    return acutUtf8ToWchar(m_current.attribute(name).as_string());
}

int CASXmlCursor::GetIntAttrib(const char* name) const {
    const std::wstring text = GetAttrib(name);
    const long value = std::wcstol(text.c_str(), nullptr, 10);
    if (value > INT_MAX) return INT_MAX;
    if (value < INT_MIN) return INT_MIN;
    return static_cast<int>(value);
}

double CASXmlCursor::GetDblAttrib(const char* name) const {
    const std::wstring text = GetAttrib(name);
    return std::wcstod(text.c_str(), nullptr);
}

std::wstring CASXmlCursor::GetSubDoc() const {
    return m_current ? Data::CXmlText::ToText(m_current) : std::wstring();
}

}  // namespace XimoGis::AssemblySchemes
