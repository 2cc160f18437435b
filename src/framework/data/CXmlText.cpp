#include "framework/data/CXmlText.h"

#include "framework/data/CNumberText.h"
#include "host/base/AcString.h"

#include <sstream>

namespace XimoGis::Data {

namespace {

std::wstring Describe(const pugi::xml_node& node, const char* name) {
    return L"attribute \"" + acutUtf8ToWchar(name) + L"\" of <" + acutUtf8ToWchar(node.name()) + L">";
}

}  // namespace

std::wstring CXmlText::ToText(const pugi::xml_node& node) {
    std::ostringstream out;
    node.print(out, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
    return acutUtf8ToWchar(out.str());
}

bool CXmlText::Load(const wchar_t* text, pugi::xml_document& document, std::wstring* error) {
    if (!text) return Fail(error, L"no XML text given");
    const std::string utf8 = acutWcharToUtf8(text);
    const pugi::xml_parse_result result =
        document.load_buffer(utf8.data(), utf8.size(), pugi::parse_default, pugi::encoding_utf8);
    if (result) return true;
    return Fail(error, L"malformed XML at byte " + std::to_wstring(result.offset) + L": " +
                           acutUtf8ToWchar(result.description()));
}

void CXmlText::SetAttribute(pugi::xml_node node, const char* name, const std::wstring& value) {
    node.append_attribute(name).set_value(acutWcharToUtf8(value).c_str());
}

void CXmlText::SetAttribute(pugi::xml_node node, const char* name, long value) {
    node.append_attribute(name).set_value(std::to_string(value).c_str());
}

std::wstring CXmlText::GetAttribute(const pugi::xml_node& node, const char* name) {
    return acutUtf8ToWchar(node.attribute(name).value());
}

bool CXmlText::ReadInt(const pugi::xml_node& node, const char* name, int fallback, int& value,
                       std::wstring* error) {
    const pugi::xml_attribute attribute = node.attribute(name);
    if (!attribute) {
        value = fallback;
        return true;
    }
    const std::wstring text = acutUtf8ToWchar(attribute.value());
    if (CNumberText::ParseInt(text, value)) return true;
    return Fail(error, Describe(node, name) + L" is not an integer: \"" + text + L"\"");
}

bool CXmlText::ReadFlag(const pugi::xml_node& node, const char* name, bool fallback, bool& value,
                        std::wstring* error) {
    int number = 0;
    if (!ReadInt(node, name, fallback ? 1 : 0, number, error)) return false;
    if (number != 0 && number != 1)
        return Fail(error, Describe(node, name) + L" must be 0 or 1, not " + std::to_wstring(number));
    value = number == 1;
    return true;
}

bool CXmlText::Fail(std::wstring* error, const std::wstring& message) {
    if (error) *error = message;
    return false;
}

}  // namespace XimoGis::Data
